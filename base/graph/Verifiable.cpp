#include "base/graph/Verifiable.h"

namespace VRK {

Verifiable::~Verifiable() = default;

void Verifiable::verify() {}

} // namespace VRK
