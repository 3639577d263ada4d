#include "plugins/prim/values/numbers/NonNegativeIntReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"

#include <tuple>

namespace Prim {

struct NonNegativeIntReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        // The sign is the editor's to check, so that "-3" gets its message, not ours.
        return std::make_tuple(dataEditor, "Expecting a non-negative integer.",
                               &PrimReaderUtils::set<NonNegativeIntEditor, int,
                                                     &NonNegativeIntEditor::setNonNegativeInt>);
    }
};

template class ValueReader<VRK::ScriptScanner, IntNumberReader, NonNegativeIntReading>;
template class ValueReader<VRK::PlainScanner, IntNumberReader, NonNegativeIntReading>;

} // namespace Prim
