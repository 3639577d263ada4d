#include "plugins/prim/DoubleReader.h"

#include "plugins/prim/DoubleEditor.h"
#include "plugins/prim/PrimReaderUtils.h"

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
