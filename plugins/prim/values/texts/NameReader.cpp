#include "plugins/prim/values/texts/NameReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/texts/NameEditor.h"

namespace Prim {

template <class ScannerT>
NameReader<ScannerT>::NameReader(VRK::DataEditor* dataEditor)
    : QuotedTextReader<ScannerT>(dataEditor, "a name", QuotedTextReader<ScannerT>::Escapes::none,
                                 PrimReaderUtils::setterOf(dataEditor, &NameEditor::setName))
{
}

template class NameReader<VRK::ScriptScanner>;
template class NameReader<VRK::PlainScanner>;

} // namespace Prim
