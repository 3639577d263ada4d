#include "plugins/prim/values/numbers/NonNegativeIntReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"

namespace Prim {

// The sign is the editor's to check, so that "-3" gets its message, not ours.
template <class ScannerT>
NonNegativeIntReader<ScannerT>::NonNegativeIntReader(VRK::DataEditor* dataEditor)
    : NumberReader<ScannerT, int>(
        dataEditor, "Expecting a non-negative integer.",
        &PrimReaderUtils::set<NonNegativeIntEditor, int, &NonNegativeIntEditor::setNonNegativeInt>)
{
}

template class NonNegativeIntReader<VRK::ScriptScanner>;
template class NonNegativeIntReader<VRK::PlainScanner>;

} // namespace Prim
