#ifndef VRK_PLUGINS_PRIM_FILES_PATHREADER_H
#define VRK_PLUGINS_PRIM_FILES_PATHREADER_H

#include "plugins/prim/values/texts/QuotedTextReader.h"

namespace Prim {

// Reads a file path between double quotes; backslashes are path separators,
// not escapes.
template <class ScannerT>
class PathReader : public QuotedTextReader<ScannerT> {
public:
    explicit PathReader(VRK::DataEditor* dataEditor);
};

extern template class PathReader<VRK::ScriptScanner>;
extern template class PathReader<VRK::PlainScanner>;

} // namespace Prim

#endif
