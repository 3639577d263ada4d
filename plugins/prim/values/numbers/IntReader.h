#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTREADER_H

#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a decimal integer that fits in 32 signed bits.
template <class ScannerT>
class IntReader : public NumberReader<ScannerT, int> {
public:
    explicit IntReader(VRK::DataEditor* dataEditor);
};

extern template class IntReader<VRK::ScriptScanner>;
extern template class IntReader<VRK::PlainScanner>;

} // namespace Prim

#endif
