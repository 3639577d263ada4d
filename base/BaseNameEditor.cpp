#include "base/BaseNameEditor.h"

namespace VRK {

BaseNameEditor::~BaseNameEditor() = default;

} // namespace VRK
