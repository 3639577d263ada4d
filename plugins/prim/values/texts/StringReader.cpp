#include "plugins/prim/values/texts/StringReader.h"

#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/texts/StringEditor.h"

#include <tuple>

namespace Prim {

struct StringReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        return std::make_tuple(dataEditor, "a string", QuotedTextEscapes::backslash,
                               PrimReaderUtils::setterOf(dataEditor, &StringEditor::setString));
    }
};

template class ValueReader<VRK::ScriptScanner, QuotedTextReader, StringReading>;
template class ValueReader<VRK::PlainScanner, QuotedTextReader, StringReading>;

} // namespace Prim
