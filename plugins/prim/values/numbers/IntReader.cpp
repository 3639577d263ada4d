#include "plugins/prim/values/numbers/IntReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/numbers/IntEditor.h"

#include <tuple>

namespace Prim {

struct IntReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        return std::make_tuple(dataEditor, "Expecting an integer.",
                               &PrimReaderUtils::set<IntEditor, int, &IntEditor::setInt>);
    }
};

template class ValueReader<VRK::ScriptScanner, IntNumberReader, IntReading>;
template class ValueReader<VRK::PlainScanner, IntNumberReader, IntReading>;

} // namespace Prim
