#include "base/data/BaseImageExpressionEditor.h"

namespace VRK {

BaseImageExpressionEditor::~BaseImageExpressionEditor() = default;

} // namespace VRK
