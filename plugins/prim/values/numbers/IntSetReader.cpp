#include "plugins/prim/values/numbers/IntSetReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"

#include <tuple>

namespace Prim {

struct IntSetReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        using namespace boost::spirit::classic;
        IntSetEditor* editor = &PrimEditorUtils::editorOf<IntSetEditor>(dataEditor);
        // Once "[" is read, whatever is not "]" must be an element: a missing element or a
        // missing "]" is reported where the element was expected.
        auto element =
            VRK::Spirit::transduced_assertive_p(
                int_p[([editor](int value) { editor->addInt(value); })], "Expecting an integer.")
            >> !ch_p(',');
        return std::make_tuple(dataEditor,
                               VRK::Spirit::transduced_assertive_p(
                                   ch_p('[') >> element >> *(~eps_p(ch_p(']')) >> element) >> ']',
                                   "Expecting a non-empty set of integers."));
    }
};

template class ValueReader<VRK::ScriptScanner, RuleReader, IntSetReading>;
template class ValueReader<VRK::PlainScanner, RuleReader, IntSetReading>;

} // namespace Prim
