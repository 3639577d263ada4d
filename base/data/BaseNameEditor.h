#ifndef VRK_BASE_DATA_BASENAMEEDITOR_H
#define VRK_BASE_DATA_BASENAMEEDITOR_H

#include "base/data/DataEditor.h"

namespace VRK {

// The editor of name values, which the host recognises for naming purposes.
class BaseNameEditor : public DataEditor {
public:
    using DataEditor::DataEditor;
    BaseNameEditor(const BaseNameEditor&) = default;
    BaseNameEditor& operator=(const BaseNameEditor&) = default;
    ~BaseNameEditor() override;
};

} // namespace VRK

#endif
