#include "plugins/prim/values/keywords/LogTagReader.h"

#include "base/log/LogTagInfo.h"
#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"

#include <tuple>

namespace Prim {

struct LogTagReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        using namespace boost::spirit::classic;
        LogTagEditor* editor = &PrimEditorUtils::editorOf<LogTagEditor>(dataEditor);
        auto keyword = [editor](VRK::LogTag tag) {
            auto setTag = [editor, tag](auto, auto) { editor->setLogTag(tag); };
            return str_p(VRK::LogTagInfo::getName(tag))[setTag];
        };
        // Keywords are plain literals tried in this order; ".info" before ".info2" and
        // ".debug" before ".debug2" is how scripts have always been read.
        return std::make_tuple(
            dataEditor, VRK::Spirit::transduced_assertive_p(
                            keyword(VRK::unconditional) | keyword(VRK::result) | keyword(VRK::error)
                                | keyword(VRK::warning) | keyword(VRK::info) | keyword(VRK::info2)
                                | keyword(VRK::debug) | keyword(VRK::debug2) | keyword(VRK::trace),
                            "Expecting a log level."));
    }
};

template class ValueReader<VRK::ScriptScanner, RuleReader, LogTagReading>;
template class ValueReader<VRK::PlainScanner, RuleReader, LogTagReading>;

} // namespace Prim
