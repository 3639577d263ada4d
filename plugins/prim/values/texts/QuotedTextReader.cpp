#include "plugins/prim/values/texts/QuotedTextReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "base/util/StringUtils.h"

#include <boost/spirit/include/classic_actor.hpp>
#include <boost/spirit/include/classic_escape_char.hpp>

#include <utility>

namespace Prim {

template <class ScannerT>
QuotedTextReader<ScannerT>::QuotedTextReader(VRK::DataEditor* dataEditor, const std::string& item,
                                             Escapes escapes, std::function<void(std::string)> set)
    : RuleReader<ScannerT>(dataEditor), set_(std::move(set))
{
    using namespace boost::spirit::classic;
    const std::string message = "Expecting " + item + " enclosed by '\"'.";
    auto quoted = [this](auto character) {
        return lexeme_d[ch_p('"') >> (*(character - '"'))[assign_a(text_)] >> '"'];
    };
    auto setText = [this, escapes](auto, auto) {
        std::string value = text_;
        if (escapes == Escapes::backslash)
            VRK::StringUtils::replaceAll(value, "\\\"", "\"");
        set_(std::move(value));
    };
    if (escapes == Escapes::backslash)
        this->setGrammar(
            VRK::Spirit::transduced_assertive_p(quoted(lex_escape_ch_p)[setText], message));
    else
        this->setGrammar(VRK::Spirit::transduced_assertive_p(quoted(anychar_p)[setText], message));
}

template class QuotedTextReader<VRK::ScriptScanner>;
template class QuotedTextReader<VRK::PlainScanner>;

} // namespace Prim
