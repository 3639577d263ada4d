#include "base/data/BaseTopLevelImageExpression.h"

namespace VRK {

BaseTopLevelImageExpression::~BaseTopLevelImageExpression() = default;

} // namespace VRK
