#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGEDITOR_H

#include "base/data/DataEditor.h"
#include <string>

namespace Prim {

// Builds strings; any byte string is accepted.
class StringEditor : public VRK::DataEditor {
public:
    StringEditor();
    StringEditor(const StringEditor&) = default;
    StringEditor& operator=(const StringEditor&) = default;
    ~StringEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setString(std::string value);
    const std::string& getString() const { return value_; }

private:
    std::string value_;
};

} // namespace Prim

#endif
