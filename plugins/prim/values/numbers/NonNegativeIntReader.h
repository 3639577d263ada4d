#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTREADER_H

#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a decimal integer; the editor refuses negative ones.
template <class ScannerT>
class NonNegativeIntReader : public NumberReader<ScannerT, int> {
public:
    explicit NonNegativeIntReader(VRK::DataEditor* dataEditor);
};

extern template class NonNegativeIntReader<VRK::ScriptScanner>;
extern template class NonNegativeIntReader<VRK::PlainScanner>;

} // namespace Prim

#endif
