#include "plugins/prim/values/numbers/PercentReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/ExactRealParser.h"
#include "plugins/prim/values/numbers/PercentEditor.h"

namespace Prim {

template <class ScannerT>
PercentReader<ScannerT>::PercentReader(VRK::DataEditor* dataEditor)
    : RuleReader<ScannerT>(dataEditor)
{
    using namespace boost::spirit::classic;
    PercentEditor* editor = &PrimEditorUtils::editorOf<PercentEditor>(dataEditor);
    // The "%" is a token of its own: white space and comments may come before it.
    auto setPercent = [this, editor](auto, auto) {
        if (percentage_)
            editor->setPercent100(number_);
        else
            editor->setPercent(number_);
    };
    auto readNumber = [this](double number) {
        number_ = number;
        percentage_ = false;
    };
    auto markPercentage = [this](char) { percentage_ = true; };
    this->setGrammar(VRK::Spirit::transduced_assertive_p(
        (Spirit::exact_real_p[readNumber] >> !ch_p('%')[markPercentage])[setPercent],
        "Expecting a percent value."));
}

template class PercentReader<VRK::ScriptScanner>;
template class PercentReader<VRK::PlainScanner>;

} // namespace Prim
