#include "plugins/prim/values/numbers/DoubleReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"

#include <tuple>

namespace Prim {

struct DoubleReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        return std::make_tuple(
            dataEditor, "Expecting a double precision real.",
            &PrimReaderUtils::set<DoubleEditor, double, &DoubleEditor::setDouble>);
    }
};

template class ValueReader<VRK::ScriptScanner, RealNumberReader, DoubleReading>;
template class ValueReader<VRK::PlainScanner, RealNumberReader, DoubleReading>;

} // namespace Prim
