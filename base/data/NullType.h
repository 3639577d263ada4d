#ifndef VRK_BASE_DATA_NULLTYPE_H
#define VRK_BASE_DATA_NULLTYPE_H

namespace VRK {

// Stands for "none" where a viewer or editor class is expected.
class NullType {};

} // namespace VRK

#endif
