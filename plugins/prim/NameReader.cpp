#include "plugins/prim/NameReader.h"

#include "plugins/prim/NameEditor.h"
#include "plugins/prim/PrimReaderUtils.h"

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
