#include "base/task/Cancellable.h"

namespace VRK {

Cancellable::~Cancellable() = default;

} // namespace VRK
