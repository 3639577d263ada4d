#include "base/util/Lockable.h"

namespace VRK {

Lockable::~Lockable() = default;

} // namespace VRK
