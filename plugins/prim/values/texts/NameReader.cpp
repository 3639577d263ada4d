#include "plugins/prim/values/texts/NameReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/texts/NameEditor.h"

#include <tuple>

namespace Prim {

struct NameReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        return std::make_tuple(dataEditor, "a name", QuotedTextEscapes::none,
                               PrimReaderUtils::setterOf(dataEditor, &NameEditor::setName));
    }
};

template class ValueReader<VRK::ScriptScanner, QuotedTextReader, NameReading>;
template class ValueReader<VRK::PlainScanner, QuotedTextReader, NameReading>;

} // namespace Prim
