#include "plugins/prim/files/PathReader.h"

#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/values/PrimReaderUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"

#include <tuple>

namespace Prim {

struct PathReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        return std::make_tuple(dataEditor, "a file path", QuotedTextEscapes::none,
                               PrimReaderUtils::setterOf(dataEditor, &PathEditor::setPath));
    }
};

template class ValueReader<VRK::ScriptScanner, QuotedTextReader, PathReading>;
template class ValueReader<VRK::PlainScanner, QuotedTextReader, PathReading>;

} // namespace Prim
