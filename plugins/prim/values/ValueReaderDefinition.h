#ifndef VRK_PLUGINS_PRIM_VALUES_VALUEREADERDEFINITION_H
#define VRK_PLUGINS_PRIM_VALUES_VALUEREADERDEFINITION_H

#include "plugins/prim/values/ValueReader.h"

#include <tuple>
#include <type_traits>

namespace Prim {

template <class ScannerT, template <class> class BaseT, class ReadingT>
ValueReader<ScannerT, BaseT, ReadingT>::ValueReader(VRK::DataEditor* dataEditor)
    : ValueReader(
        ReadingT::arguments(dataEditor),
        std::make_index_sequence<
            std::tuple_size<std::decay_t<decltype(ReadingT::arguments(dataEditor))>>::value>())
{
}

template <class ScannerT, template <class> class BaseT, class ReadingT>
template <class TupleT, std::size_t... Indices>
ValueReader<ScannerT, BaseT, ReadingT>::ValueReader(TupleT&& arguments,
                                                    std::index_sequence<Indices...>)
    : BaseT<ScannerT>(std::get<Indices>(std::forward<TupleT>(arguments))...)
{
}

} // namespace Prim

#endif
