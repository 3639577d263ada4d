#ifndef VRK_BASE_DATA_TYPESHIM_H
#define VRK_BASE_DATA_TYPESHIM_H

#include "base/data/Type.h"
#include "base/util/Singleton.h"

namespace VRK {

// Base of a concrete type class TypeT of data DataT; gives it `getInstance`.
template <class TypeT, class DataT>
class TypeShim : public Type<DataT> {
public:
    using Type<DataT>::Type;

    static const std::shared_ptr<TypeT>& getInstance() { return Singleton<TypeT>::getInstance(); }
};

} // namespace VRK

#endif
