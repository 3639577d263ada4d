#include "plugins/io/TextFileReader.h"

#include "plugins/io/TextFileEditor.h"

namespace Io {

template <class ScannerT>
TextFileReader<ScannerT>::TextFileReader(VRK::DataEditor* dataEditor)
    : Prim::FileKindReader<TextFileKind, ScannerT>(dataEditor)
{
}

template class TextFileReader<VRK::ScriptScanner>;
template class TextFileReader<VRK::PlainScanner>;

} // namespace Io
