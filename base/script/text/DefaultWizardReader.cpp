#include "base/script/text/DefaultWizardReader.h"

#include "base/parse/ScriptTextScanner.h"
#include "base/parse/TransducedAssertiveParser.h"
#include "base/script/ScriptTextInput.h"
#include "base/script/text/DefaultScriptActions.h"

#include <boost/spirit/include/classic_core.hpp>

namespace VRK {

DefaultWizardReader::DefaultWizardReader() = default;

DefaultWizardReader::~DefaultWizardReader() = default;

void DefaultWizardReader::readImpl(std::istream& in, const std::string& filename)
{
    using namespace boost::spirit::classic;
    using Spirit::transduced_assertive_p;
    using Rule = rule<ScriptScanner>;

    const std::string text = ScriptTextInput::readAll(in, "The parameters \"" + filename + "\"");

    WizardParameter parameter;
    const auto word = (alpha_p | '_') >> *(alnum_p | '_');
    auto name = [&](const ScriptIterator& first, const ScriptIterator& last) {
        const std::string text(first, last);
        parameter.alias = text.substr(0, text.find('.'));
        parameter.port = text.substr(text.find('.') + 1);
        parameter.namePosition = DefaultScriptActions::positionOf(first);
    };
    auto value = [&](const ScriptIterator& first, const ScriptIterator& last) {
        parameter.value = std::string(first, last);
        parameter.value.erase(parameter.value.find_last_not_of(" \t\r\n") + 1);
        parameter.position = DefaultScriptActions::positionOf(first);
    };
    auto add = [&](const ScriptIterator&, const ScriptIterator&) { addParameter(parameter); };

    // A value is the rest of the line up to its ";"; double-quoted and bracketed parts
    // (expressions) are taken whole, across lines too.
    const auto quoted = ch_p('"') >> *((ch_p('\\') >> anychar_p) | (anychar_p - '"')) >> '"';
    const auto bracketed = ch_p('[') >> *(quoted | (anychar_p - ']' - '"')) >> ']';
    const Rule valueText = lexeme_d[+(quoted | bracketed | (anychar_p - ';' - '"' - '\n'))];
    const Rule statement =
        lexeme_d[word >> '.' >> word][name]
        >> transduced_assertive_p(str_p("="), "Expecting \"=\" after the name of the input.")
        >> transduced_assertive_p(valueText[value], "Expecting a value.")
        >> transduced_assertive_p(str_p(";")[add], "Expecting \";\" after the value.");
    const Rule parameters =
        *statement >> transduced_assertive_p(end_p, "Expecting a parameter: alias.port = value;");

    const ScriptTextScanner scanner(text, filename);
    parameters.parse(scanner.getScanner());
}

} // namespace VRK
