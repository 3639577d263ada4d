#include "plugins/prim/NonNegativeIntReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/NonNegativeIntEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

template <class ScannerT>
NonNegativeIntReader<ScannerT>::NonNegativeIntReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a non-negative integer.")
{
    using namespace boost::spirit::classic;
    NonNegativeIntEditor* editor = &PrimEditorUtils::editorOf<NonNegativeIntEditor>(dataEditor);
    // The sign is the editor's to check, so that "-3" gets its message, not ours.
    grammar_ = VRK::Spirit::transduced_assertive_p(
        int_p[([editor](int value) { editor->setNonNegativeInt(value); })], message_);
}

template <class ScannerT>
std::ptrdiff_t NonNegativeIntReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class NonNegativeIntReader<VRK::ScriptScanner>;
template class NonNegativeIntReader<VRK::PlainScanner>;

} // namespace Prim
