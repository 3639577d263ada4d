#include "tessaly/images/BlockStep.h"

namespace Tessaly {

BlockStep::~BlockStep() = default;

} // namespace Tessaly
