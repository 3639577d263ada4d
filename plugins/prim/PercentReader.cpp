#include "plugins/prim/PercentReader.h"

#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/PercentEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

#include <boost/spirit/include/classic_actor.hpp>

namespace Prim {

template <class ScannerT>
PercentReader<ScannerT>::PercentReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a percent value.")
{
    using namespace boost::spirit::classic;
    PercentEditor* editor = &PrimEditorUtils::editorOf<PercentEditor>(dataEditor);
    // The "%" is a token of its own: white space and comments may come before it.
    auto setPercentage = [this, editor](char) { editor->setPercent100(number_); };
    auto setFraction = [this, editor](auto, auto) { editor->setPercent(number_); };
    grammar_ = VRK::Spirit::transduced_assertive_p(
        real_p[assign_a(number_)] >> (ch_p('%')[setPercentage] | eps_p[setFraction]), message_);
}

template <class ScannerT>
std::ptrdiff_t PercentReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class PercentReader<VRK::ScriptScanner>;
template class PercentReader<VRK::PlainScanner>;

} // namespace Prim
