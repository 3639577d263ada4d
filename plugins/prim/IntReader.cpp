#include "plugins/prim/IntReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/IntEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

template <class ScannerT>
IntReader<ScannerT>::IntReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting an integer.")
{
    using namespace boost::spirit::classic;
    IntEditor* editor = &PrimEditorUtils::editorOf<IntEditor>(dataEditor);
    // A number that does not fit in an int does not match.
    grammar_ = VRK::Spirit::transduced_assertive_p(
        int_p[([editor](int value) { editor->setInt(value); })], message_);
}

template <class ScannerT>
std::ptrdiff_t IntReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class IntReader<VRK::ScriptScanner>;
template class IntReader<VRK::PlainScanner>;

} // namespace Prim
