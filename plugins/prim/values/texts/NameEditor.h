#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEEDITOR_H

#include "base/data/BaseNameEditor.h"

#include <string>

namespace Prim {

// Builds names: identifiers as the host accepts them for names.
class NameEditor : public VRK::BaseNameEditor {
public:
    NameEditor();
    NameEditor(const NameEditor&) = default;
    NameEditor& operator=(const NameEditor&) = default;
    ~NameEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    virtual void setName(std::string name);
    // The edited name; the editor's own name stays reachable as Descriptable::getName.
    virtual std::string getName() const;

private:
    std::string value_;
};

} // namespace Prim

#endif
