#include "base/util/Propertiable.h"

namespace VRK {

const char* const FUNCTOR_COMMENT_PROPERTY_NAME = "comment";

Propertiable::~Propertiable() = default;

} // namespace VRK
