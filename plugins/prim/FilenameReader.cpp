#include "plugins/prim/FilenameReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/FilenameEditor.h"
#include "plugins/prim/PrimEditorUtils.h"
#include "plugins/prim/PrimReaderUtils.h"

namespace Prim {

template <class ScannerT>
FilenameReader<ScannerT>::FilenameReader(VRK::DataEditor* dataEditor, const std::string& item)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting " + item + " enclosed by '\"'.")
{
    FilenameEditor* editor = &PrimEditorUtils::editorOf<FilenameEditor>(dataEditor);
    auto setFilename = [this, editor](auto, auto) { editor->setFilename(text_, false); };
    grammar_ = VRK::Spirit::transduced_assertive_p(
        PrimReaderUtils::quotedText(text_)[setFilename], message_);
}

template <class ScannerT>
std::ptrdiff_t FilenameReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class FilenameReader<VRK::ScriptScanner>;
template class FilenameReader<VRK::PlainScanner>;

} // namespace Prim
