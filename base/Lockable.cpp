#include "base/Lockable.h"

namespace VRK {

Lockable::~Lockable() = default;

} // namespace VRK
