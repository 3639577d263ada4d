#include "plugins/prim/StringReader.h"

#include "base/StringUtils.h"
#include "base/TransducedAssertiveParser.h"
#include "plugins/prim/PrimEditorUtils.h"
#include "plugins/prim/StringEditor.h"

#include <boost/spirit/include/classic_actor.hpp>
#include <boost/spirit/include/classic_escape_char.hpp>

namespace Prim {

template <class ScannerT>
StringReader<ScannerT>::StringReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor), message_("Expecting a string enclosed by '\"'.")
{
    using namespace boost::spirit::classic;
    StringEditor* editor = &PrimEditorUtils::editorOf<StringEditor>(dataEditor);
    // The body is matched with escapes so that a protected quote does not end it, but
    // it is taken as written: only backslash-quote is turned back into a quote.
    auto setString = [this, editor](auto, auto) {
        std::string value = text_;
        VRK::StringUtils::replaceAll(value, "\\\"", "\"");
        editor->setString(value);
    };
    grammar_ = VRK::Spirit::transduced_assertive_p(
        lexeme_d[ch_p('"') >> (*(lex_escape_ch_p - '"'))[assign_a(text_)] >> '"'][setString],
        message_);
}

template <class ScannerT>
std::ptrdiff_t StringReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class StringReader<VRK::ScriptScanner>;
template class StringReader<VRK::PlainScanner>;

} // namespace Prim
