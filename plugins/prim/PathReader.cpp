#include "plugins/prim/PathReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/PathEditor.h"
#include "plugins/prim/PrimEditorUtils.h"
#include "plugins/prim/PrimReaderUtils.h"

namespace Prim {

template <class ScannerT>
PathReader<ScannerT>::PathReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a file path enclosed by '\"'.")
{
    using namespace boost::spirit::classic;
    PathEditor* editor = &PrimEditorUtils::editorOf<PathEditor>(dataEditor);
    auto setPath = [this, editor](auto, auto) { editor->setPath(text_); };
    grammar_ = VRK::Spirit::transduced_assertive_p(
        PrimReaderUtils::quotedText(text_)[setPath], message_);
}

template <class ScannerT>
std::ptrdiff_t PathReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class PathReader<VRK::ScriptScanner>;
template class PathReader<VRK::PlainScanner>;

} // namespace Prim
