#include "plugins/prim/NameReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/NameEditor.h"
#include "plugins/prim/PrimEditorUtils.h"
#include "plugins/prim/PrimReaderUtils.h"

namespace Prim {

template <class ScannerT>
NameReader<ScannerT>::NameReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a name enclosed by '\"'.")
{
    using namespace boost::spirit::classic;
    NameEditor* editor = &PrimEditorUtils::editorOf<NameEditor>(dataEditor);
    auto setName = [this, editor](auto, auto) { editor->setName(text_); };
    grammar_ = VRK::Spirit::transduced_assertive_p(
        PrimReaderUtils::quotedText(text_)[setName], message_);
}

template <class ScannerT>
std::ptrdiff_t NameReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class NameReader<VRK::ScriptScanner>;
template class NameReader<VRK::PlainScanner>;

} // namespace Prim
