#ifndef VRK_PLUGINS_IO_TEXTFILEREADER_H
#define VRK_PLUGINS_IO_TEXTFILEREADER_H

#include "plugins/io/TextFileKind.h"
#include "plugins/prim/files/FileKindReader.h"

namespace Io {

// Reads the name of a text file between double quotes.
template <class ScannerT>
class TextFileReader : public Prim::FileKindReader<TextFileKind, ScannerT> {
public:
    explicit TextFileReader(VRK::DataEditor* dataEditor);
};

extern template class TextFileReader<VRK::ScriptScanner>;
extern template class TextFileReader<VRK::PlainScanner>;

} // namespace Io

#endif
