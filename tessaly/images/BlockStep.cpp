#include "tessaly/images/BlockStep.h"

namespace Tessaly {

BlockStep::~BlockStep() = default;

void BlockStep::widenReach(const std::vector<double>&, LineReach&) const {}

} // namespace Tessaly
