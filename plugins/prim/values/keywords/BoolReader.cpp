#include "plugins/prim/values/keywords/BoolReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/keywords/BoolEditor.h"

namespace Prim {

template <class ScannerT>
BoolReader<ScannerT>::BoolReader(VRK::DataEditor* dataEditor) : RuleReader<ScannerT>(dataEditor)
{
    using namespace boost::spirit::classic;
    BoolEditor* editor = &PrimEditorUtils::editorOf<BoolEditor>(dataEditor);
    auto setTrue = [editor](auto, auto) { editor->setBool(true); };
    auto setFalse = [editor](auto, auto) { editor->setBool(false); };
    this->setGrammar(VRK::Spirit::transduced_assertive_p((str_p(".yes") | ".true")[setTrue]
                                                             | (str_p(".no") | ".false")[setFalse],
                                                         "Expecting .yes, .no, .true or .false."));
}

template class BoolReader<VRK::ScriptScanner>;
template class BoolReader<VRK::PlainScanner>;

} // namespace Prim
