#include "plugins/prim/PositiveIntReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/PositiveIntEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

template <class ScannerT>
PositiveIntReader<ScannerT>::PositiveIntReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a positive integer.")
{
    using namespace boost::spirit::classic;
    PositiveIntEditor* editor = &PrimEditorUtils::editorOf<PositiveIntEditor>(dataEditor);
    // The sign is the editor's to check, so that "0" gets its message, not ours.
    grammar_ = VRK::Spirit::transduced_assertive_p(
        int_p[([editor](int value) { editor->setPositiveInt(value); })], message_);
}

template <class ScannerT>
std::ptrdiff_t PositiveIntReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class PositiveIntReader<VRK::ScriptScanner>;
template class PositiveIntReader<VRK::PlainScanner>;

} // namespace Prim
