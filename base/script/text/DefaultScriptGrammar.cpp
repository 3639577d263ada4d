#include "base/script/text/DefaultScriptGrammar.h"

#include "base/parse/ScriptTextScanner.h"
#include "base/parse/TransducedAssertiveParser.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/text/DefaultScriptActions.h"
#include "base/util/ScriptCharClass.h"

#include <boost/spirit/include/classic_symbols.hpp>

#include <type_traits>

namespace VRK {

namespace {

using namespace boost::spirit::classic;

// Reads the value of the current input in place, through the reader registered for
// the input's type.
class InPlaceValueParser : public parser<InPlaceValueParser> {
public:
    using self_t = InPlaceValueParser;

    explicit InPlaceValueParser(DefaultScriptActions& actions) : actions_(&actions) {}

    template <class ScannerT>
    typename parser_result<self_t, ScannerT>::type parse(const ScannerT& scan) const
    {
        static_assert(std::is_same<ScannerT, ScriptScanner>::value,
                      "values are read by the readers of the script scanner");
        const ScriptIterator start = scan.first;
        const std::ptrdiff_t length = actions_->value(scan);
        return scan.create_match(length, nil_t(), start, scan.first);
    }

private:
    DefaultScriptActions* actions_;
};

// A name: a letter or "_", then letters, digits and "_". Read in one loop: names are
// most of a script's text.
class WordParser : public parser<WordParser> {
public:
    using self_t = WordParser;

    template <class ScannerT>
    typename parser_result<self_t, ScannerT>::type parse(const ScannerT& scan) const
    {
        if (scan.at_end() || !ScriptCharClass::isWordStart(*scan))
            return scan.no_match();
        const typename ScannerT::iterator_t start = scan.first;
        std::ptrdiff_t length = 0;
        do {
            ++scan.first;
            ++length;
        } while (scan.first != scan.last && ScriptCharClass::isWordChar(*scan.first));
        return scan.create_match(length, nil_t(), start, scan.first);
    }
};

using Action = void (DefaultScriptActions::*)(const ScriptIterator&, const ScriptIterator&);

// A semantic action on matched text that calls `action` of `actions`, known when
// compiled so that the call is direct.
template <Action action>
auto on(DefaultScriptActions& actions)
{
    return [&actions](const ScriptIterator& first, const ScriptIterator& last) {
        (actions.*action)(first, last);
    };
}

} // namespace

// The statements are parsed by one expression rather than rules that call each other
// through virtual functions at every name and value: only the two start rules are
// rules. Nothing recurses: a container's braces are statements of their own.
template <class ScannerT>
struct DefaultScriptGrammar::definition {
    using Rule = rule<ScannerT>;

    explicit definition(const DefaultScriptGrammar& self)
    {
        static_assert(std::is_same<ScannerT, ScriptScanner>::value,
                      "text scripts are read by the script scanner");
        using Spirit::transduced_assertive_p;
        using A = DefaultScriptActions;
        A& a = self.getActions();
        const FunctorParser& functorNames = *FactoryFarmManager::Instance().getFunctorParser();
        const WordParser word;

        const auto identifier = lexeme_d[word];
        const auto quoted =
            lexeme_d[ch_p('"') >> *((ch_p('\\') >> anychar_p) | (anychar_p - '"')) >> '"'];

        const auto property =
            str_p("@") >> transduced_assertive_p(identifier[on<&A::propertyName>(a)],
                                                 "Expecting a property name after \"@\".")
            >> transduced_assertive_p(str_p("="), "Expecting \"=\" after the property name.")
            >> transduced_assertive_p(quoted[on<&A::propertyValue>(a)],
                                      "Expecting a property value enclosed by '\"'.");

        const auto functorName =
            lexeme_d[functorNames[([&a](const std::string& name) { a.functorName(name); })]
                     >> ~eps_p(alnum_p | '_')][on<&A::beginFunctor>(a)]
            | identifier[on<&A::unknownFunctor>(a)];

        // A word without a point after it is no reference: it is left to the value's
        // reader, which says what a value of the input's type looks like.
        const auto reference = eps_p(lexeme_d[word >> '.']) >> transduced_assertive_p(
                                   lexeme_d[word >> '.' >> word][on<&A::reference>(a)],
                                   "Expecting a value, or a reference of the form alias.port.");

        const auto binding = (identifier[on<&A::word>(a)] >> '=')[on<&A::port>(a)]
                             >> (reference | InPlaceValueParser(a));

        // A container's braces are statements of their own, matched against an explicit
        // stack in the actions: nesting costs no machine stack, however deep it goes.
        const auto closing = str_p("}")[on<&A::endContents>(a)];

        const auto functor =
            !(identifier[on<&A::word>(a)] >> str_p(
                  ":=")[([&a](const ScriptIterator&, const ScriptIterator&) { a.aliasDefined(); })])
            >> transduced_assertive_p(functorName, "Expecting a functor name.") >> *binding
            >> (str_p(";") | str_p("{")[on<&A::beginContents>(a)]
                | eps_p[on<&A::unterminatedFunctor>(a)]);

        const auto statement =
            eps_p(ch_p('@') | alpha_p | '_')
                >> ((+property >> (str_p(";")[on<&A::scriptProperties>(a)] | functor)) | functor)
            | closing;

        script = *statement >> eps_p[on<&A::endOfStatements>(a)]
                 >> transduced_assertive_p(end_p, "Expecting a functor name.");

        scriptProperties = *(+property >> str_p(";")[on<&A::scriptProperties>(a)]);

        start_ = self.isPropertiesOnly() ? &scriptProperties : &script;
    }

    const Rule& start() const { return *start_; }

    Rule script, scriptProperties;
    const Rule* start_;
};

DefaultScriptGrammar::DefaultScriptGrammar(DefaultScriptActions& actions, bool propertiesOnly)
    : actions_(actions), propertiesOnly_(propertiesOnly)
{
}

void DefaultScriptGrammar::read(const std::string& text, const std::string& filename) const
{
    const ScriptTextScanner scanner(text, filename);
    boost::spirit::classic::grammar<DefaultScriptGrammar>::parse(scanner.getScanner());
}

} // namespace VRK
