#include "plugins/prim/StringReader.h"

#include "plugins/prim/PrimReaderUtils.h"
#include "plugins/prim/StringEditor.h"

namespace Prim {

template <class ScannerT>
StringReader<ScannerT>::StringReader(VRK::DataEditor* dataEditor)
    : QuotedTextReader<ScannerT>(dataEditor, "a string",
                                 QuotedTextReader<ScannerT>::Escapes::backslash,
                                 PrimReaderUtils::setterOf(dataEditor, &StringEditor::setString))
{
}

template class StringReader<VRK::ScriptScanner>;
template class StringReader<VRK::PlainScanner>;

} // namespace Prim
