#include "plugins/prim/values/numbers/IntReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/numbers/IntEditor.h"

namespace Prim {

template <class ScannerT>
IntReader<ScannerT>::IntReader(VRK::DataEditor* dataEditor)
    : NumberReader<ScannerT, int>(dataEditor, "Expecting an integer.",
                                  &PrimReaderUtils::set<IntEditor, int, &IntEditor::setInt>)
{
}

template class IntReader<VRK::ScriptScanner>;
template class IntReader<VRK::PlainScanner>;

} // namespace Prim
