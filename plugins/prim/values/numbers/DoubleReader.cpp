#include "plugins/prim/values/numbers/DoubleReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"

namespace Prim {

template <class ScannerT>
DoubleReader<ScannerT>::DoubleReader(VRK::DataEditor* dataEditor)
    : NumberReader<ScannerT, double>(
        dataEditor, "Expecting a double precision real.",
        &PrimReaderUtils::set<DoubleEditor, double, &DoubleEditor::setDouble>)
{
}

template class DoubleReader<VRK::ScriptScanner>;
template class DoubleReader<VRK::PlainScanner>;

} // namespace Prim
