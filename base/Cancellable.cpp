#include "base/Cancellable.h"

namespace VRK {

Cancellable::~Cancellable() = default;

} // namespace VRK
