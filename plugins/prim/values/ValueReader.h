#ifndef VRK_PLUGINS_PRIM_VALUES_VALUEREADER_H
#define VRK_PLUGINS_PRIM_VALUES_VALUEREADER_H

#include "base/data/DataEditor.h"

#include <cstddef>
#include <utility>

namespace Prim {

// The reader of a value type that is wholly a base reader set up for the type: the
// readers of the types differ only in the arguments their base is made with, which
// `ReadingT::arguments(dataEditor)` gives as a tuple.
//
// Only the constructor is declared here. Its definition (ValueReaderDefinition.h) is
// included by the source of each reading alone, which instantiates the reader for both
// scanners, so that each type's grammar is compiled once, in its own translation unit.
template <class ScannerT, template <class> class BaseT, class ReadingT>
class ValueReader : public BaseT<ScannerT> {
public:
    explicit ValueReader(VRK::DataEditor* dataEditor);

private:
    template <class TupleT, std::size_t... Indices>
    ValueReader(TupleT&& arguments, std::index_sequence<Indices...>);
};

} // namespace Prim

#endif
