#ifndef VRK_BASE_GRAPH_INPUTPORT_H
#define VRK_BASE_GRAPH_INPUTPORT_H

#include "base/data/DataEditor.h"
#include "base/data/SinglePeerDataHolder.h"
#include "base/util/ScriptPosition.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace VRK {

// An input of a functor: either bound to one peer output, or holding an editor whose
// value the modeller typed in.
class InputPort : public SinglePeerDataHolder {
public:
    // `linked`: the port is meant to be bound rather than typed in.
    InputPort(std::string_view name, std::string_view description,
              const std::shared_ptr<BaseType>& type, bool linked);
    InputPort(const InputPort& other);
    ~InputPort() override;

    virtual std::shared_ptr<InputPort> clone() const;

    DataEditor* getDataEditor() const { return editor_.get(); }
    std::shared_ptr<DataEditor> getDataEditorPtr() const { return editor_; }
    bool hasDataEditor() const { return editor_ != nullptr; }
    void setDataEditor(const std::shared_ptr<DataEditor>& editor);

    // Feedback ports may close a cycle: they carry the previous pass's data.
    virtual bool isFeedback() const { return false; }

    bool isLinked() const { return linked_; }
    bool isOptional() const { return optional_; }
    void setOptional(bool optional) { optional_ = optional; }
    // Whether the modeller gave this port a value (typed in or bound).
    bool isSet() const { return valueSet_ || isBound(); }
    void setValueSet(bool set) { valueSet_ = set; }
    // Where the script bound the port or gave its value; unknown for ports no script set.
    const ScriptPosition& getPosition() const { return position_; }
    void setPosition(const ScriptPosition& position) { position_ = position; }

    // Fills the port for a run: the peer's data when bound, else the editor's value.
    void pullData() override;
    void setOwner(Functor* owner) override;

private:
    void pullFromPeer();

    std::shared_ptr<DataEditor> editor_;
    bool linked_;
    bool optional_ = false;
    bool valueSet_ = false;
    ScriptPosition position_;
};

} // namespace VRK

#endif
