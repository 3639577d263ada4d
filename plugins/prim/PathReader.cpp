#include "plugins/prim/PathReader.h"

#include "plugins/prim/PathEditor.h"
#include "plugins/prim/PrimReaderUtils.h"

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
