#include "base/data/BaseNameEditor.h"

namespace VRK {

BaseNameEditor::~BaseNameEditor() = default;

} // namespace VRK
