#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEREADER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEREADER_H

#include "plugins/prim/values/texts/QuotedTextReader.h"

namespace Prim {

// Reads a name between double quotes; a name holds no double quote.
template <class ScannerT>
class NameReader : public QuotedTextReader<ScannerT> {
public:
    explicit NameReader(VRK::DataEditor* dataEditor);
};

extern template class NameReader<VRK::ScriptScanner>;
extern template class NameReader<VRK::PlainScanner>;

} // namespace Prim

#endif
