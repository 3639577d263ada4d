#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEREADER_H

#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a real number in the usual decimal notation, with an optional exponent.
template <class ScannerT>
class DoubleReader : public NumberReader<ScannerT, double> {
public:
    explicit DoubleReader(VRK::DataEditor* dataEditor);
};

extern template class DoubleReader<VRK::ScriptScanner>;
extern template class DoubleReader<VRK::PlainScanner>;

} // namespace Prim

#endif
