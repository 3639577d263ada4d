#include "plugins/prim/values/numbers/PositiveIntReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"

namespace Prim {

// The sign is the editor's to check, so that "0" gets its message, not ours.
template <class ScannerT>
PositiveIntReader<ScannerT>::PositiveIntReader(VRK::DataEditor* dataEditor)
    : NumberReader<ScannerT, int>(
        dataEditor, "Expecting a positive integer.",
        &PrimReaderUtils::set<PositiveIntEditor, int, &PositiveIntEditor::setPositiveInt>)
{
}

template class PositiveIntReader<VRK::ScriptScanner>;
template class PositiveIntReader<VRK::PlainScanner>;

} // namespace Prim
