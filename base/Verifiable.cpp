#include "base/Verifiable.h"

namespace VRK {

Verifiable::~Verifiable() = default;

void Verifiable::verify() {}

} // namespace VRK
