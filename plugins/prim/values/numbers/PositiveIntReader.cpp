#include "plugins/prim/values/numbers/PositiveIntReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"

#include <tuple>

namespace Prim {

struct PositiveIntReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        // The sign is the editor's to check, so that "0" gets its message, not ours.
        return std::make_tuple(
            dataEditor, "Expecting a positive integer.",
            &PrimReaderUtils::set<PositiveIntEditor, int, &PositiveIntEditor::setPositiveInt>);
    }
};

template class ValueReader<VRK::ScriptScanner, IntNumberReader, PositiveIntReading>;
template class ValueReader<VRK::PlainScanner, IntNumberReader, PositiveIntReading>;

} // namespace Prim
