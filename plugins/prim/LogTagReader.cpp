#include "plugins/prim/LogTagReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/LogTagEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

template <class ScannerT>
LogTagReader<ScannerT>::LogTagReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a log level.")
{
    using namespace boost::spirit::classic;
    LogTagEditor* editor = &PrimEditorUtils::editorOf<LogTagEditor>(dataEditor);
    auto keyword = [editor](const char* text, VRK::LogTag tag) {
        return str_p(text)[([editor, tag](auto, auto) { editor->setLogTag(tag); })];
    };
    // Keywords are plain literals tried in this order; ".info" before ".info2" and
    // ".debug" before ".debug2" is how scripts have always been read.
    grammar_ = VRK::Spirit::transduced_assertive_p(
        keyword(".unconditional", VRK::unconditional) | keyword(".result", VRK::result)
            | keyword(".error", VRK::error) | keyword(".warning", VRK::warning)
            | keyword(".info", VRK::info) | keyword(".info2", VRK::info2)
            | keyword(".debug", VRK::debug) | keyword(".debug2", VRK::debug2)
            | keyword(".trace", VRK::trace),
        message_);
}

template <class ScannerT>
std::ptrdiff_t LogTagReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class LogTagReader<VRK::ScriptScanner>;
template class LogTagReader<VRK::PlainScanner>;

} // namespace Prim
