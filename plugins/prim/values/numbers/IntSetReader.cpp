#include "plugins/prim/values/numbers/IntSetReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"

namespace Prim {

template <class ScannerT>
IntSetReader<ScannerT>::IntSetReader(VRK::DataEditor* dataEditor) : RuleReader<ScannerT>(dataEditor)
{
    using namespace boost::spirit::classic;
    IntSetEditor* editor = &PrimEditorUtils::editorOf<IntSetEditor>(dataEditor);
    // Once "[" is read, whatever is not "]" must be an element: a missing element or a
    // missing "]" is reported where the element was expected.
    auto element =
        VRK::Spirit::transduced_assertive_p(int_p[([editor](int value) { editor->addInt(value); })],
                                            "Expecting an integer.")
        >> !ch_p(',');
    this->setGrammar(VRK::Spirit::transduced_assertive_p(
        ch_p('[') >> element >> *(~eps_p(ch_p(']')) >> element) >> ']',
        "Expecting a non-empty set of integers."));
}

template class IntSetReader<VRK::ScriptScanner>;
template class IntSetReader<VRK::PlainScanner>;

} // namespace Prim
