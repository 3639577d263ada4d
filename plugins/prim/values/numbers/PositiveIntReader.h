#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTREADER_H

#include "plugins/prim/values/numbers/NumberReader.h"

namespace Prim {

// Reads a decimal integer; the editor refuses zero and negative ones.
template <class ScannerT>
class PositiveIntReader : public NumberReader<ScannerT, int> {
public:
    explicit PositiveIntReader(VRK::DataEditor* dataEditor);
};

extern template class PositiveIntReader<VRK::ScriptScanner>;
extern template class PositiveIntReader<VRK::PlainScanner>;

} // namespace Prim

#endif
