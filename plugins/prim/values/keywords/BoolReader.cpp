#include "plugins/prim/values/keywords/BoolReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"
#include "plugins/prim/values/keywords/BoolEditor.h"

#include <tuple>

namespace Prim {

struct BoolReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        using namespace boost::spirit::classic;
        BoolEditor* editor = &PrimEditorUtils::editorOf<BoolEditor>(dataEditor);
        auto setTrue = [editor](auto, auto) { editor->setBool(true); };
        auto setFalse = [editor](auto, auto) { editor->setBool(false); };
        return std::make_tuple(dataEditor, VRK::Spirit::transduced_assertive_p(
                                               (str_p(".yes") | ".true")[setTrue]
                                                   | (str_p(".no") | ".false")[setFalse],
                                               "Expecting .yes, .no, .true or .false."));
    }
};

template class ValueReader<VRK::ScriptScanner, RuleReader, BoolReading>;
template class ValueReader<VRK::PlainScanner, RuleReader, BoolReading>;

} // namespace Prim
