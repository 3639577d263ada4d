#include "plugins/prim/files/PathReader.h"

#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/values/PrimReaderUtils.h"

namespace Prim {

template <class ScannerT>
PathReader<ScannerT>::PathReader(VRK::DataEditor* dataEditor)
    : QuotedTextReader<ScannerT>(dataEditor, "a file path",
                                 QuotedTextReader<ScannerT>::Escapes::none,
                                 PrimReaderUtils::setterOf(dataEditor, &PathEditor::setPath))
{
}

template class PathReader<VRK::ScriptScanner>;
template class PathReader<VRK::PlainScanner>;

} // namespace Prim
