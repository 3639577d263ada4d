#include "plugins/prim/values/texts/StringReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/texts/StringEditor.h"

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
