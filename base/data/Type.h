#ifndef VRK_BASE_DATA_TYPE_H
#define VRK_BASE_DATA_TYPE_H

#include "base/data/BaseType.h"
#include "base/data/NullType.h"

#include <type_traits>

namespace VRK {

// A type whose values are objects of the data class DataT; it makes the editor and
// viewer that DataT names, so a port of this type gets them without asking.
template <class DataT>
class Type : public BaseType {
public:
    using DataType = DataT;
    using BaseType::BaseType;

    std::shared_ptr<DataEditor> createEditor() const override
    {
        return make<typename DataT::EditorType, DataEditor>();
    }

    std::shared_ptr<DataViewer> createViewer() const override
    {
        return make<typename DataT::ViewerType, DataViewer>();
    }

private:
    template <class T, class Result>
    static std::shared_ptr<Result> make()
    {
        if constexpr (std::is_same<T, NullType>::value)
            return nullptr;
        else
            return std::make_shared<T>();
    }
};

} // namespace VRK

#endif
