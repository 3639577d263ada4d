#include "plugins/prim/DoubleReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/DoubleEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

template <class ScannerT>
DoubleReader<ScannerT>::DoubleReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a double precision real.")
{
    using namespace boost::spirit::classic;
    DoubleEditor* editor = &PrimEditorUtils::editorOf<DoubleEditor>(dataEditor);
    // real_p knows no "inf" or "nan": such text is not a real here.
    grammar_ = VRK::Spirit::transduced_assertive_p(
        real_p[([editor](double value) { editor->setDouble(value); })], message_);
}

template <class ScannerT>
std::ptrdiff_t DoubleReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class DoubleReader<VRK::ScriptScanner>;
template class DoubleReader<VRK::PlainScanner>;

} // namespace Prim
