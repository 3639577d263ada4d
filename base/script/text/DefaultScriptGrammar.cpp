#include "base/script/text/DefaultScriptGrammar.h"

#include "base/parse/ScriptCharClass.h"
#include "base/parse/ScriptTextScanner.h"
#include "base/parse/TransducedAssertiveParser.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/text/DefaultScriptActions.h"

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

// A semantic action on matched text that calls `action` of `actions`.
auto on(DefaultScriptActions& actions, Action action)
{
    return [&actions, action](const ScriptIterator& first, const ScriptIterator& last) {
        (actions.*action)(first, last);
    };
}

} // namespace

template <class ScannerT>
struct DefaultScriptGrammar::definition {
    using Rule = rule<ScannerT>;

    explicit definition(const DefaultScriptGrammar& self)
    {
        static_assert(std::is_same<ScannerT, ScriptScanner>::value,
                      "text scripts are read by the script scanner");
        using Spirit::transduced_assertive_p;
        DefaultScriptActions& a = self.getActions();
        const FunctorParser& functorNames = *FactoryFarmManager::Instance().getFunctorParser();
        const WordParser word;

        identifier = lexeme_d[word];
        quoted = lexeme_d[ch_p('"') >> *((ch_p('\\') >> anychar_p) | (anychar_p - '"')) >> '"'];

        property = str_p("@")
                   >> transduced_assertive_p(identifier[on(a, &DefaultScriptActions::propertyName)],
                                             "Expecting a property name after \"@\".")
                   >> transduced_assertive_p(str_p("="), "Expecting \"=\" after the property name.")
                   >> transduced_assertive_p(quoted[on(a, &DefaultScriptActions::propertyValue)],
                                             "Expecting a property value enclosed by '\"'.");

        functorName =
            lexeme_d[functorNames[([&a](const std::string& name) { a.functorName(name); })]
                     >> ~eps_p(alnum_p | '_')][on(a, &DefaultScriptActions::beginFunctor)]
            | identifier[on(a, &DefaultScriptActions::unknownFunctor)];

        // A word without a point after it is no reference: it is left to the value's
        // reader, which says what a value of the input's type looks like.
        reference = eps_p(lexeme_d[word >> '.'])
                    >> transduced_assertive_p(
                        lexeme_d[word >> '.' >> word][on(a, &DefaultScriptActions::reference)],
                        "Expecting a value, or a reference of the form alias.port.");

        binding = (identifier[on(a, &DefaultScriptActions::word)]
                   >> '=')[on(a, &DefaultScriptActions::port)]
                  >> (reference | InPlaceValueParser(a));

        // A container's braces are statements of their own, matched against an explicit
        // stack in the actions: nesting costs no machine stack, however deep it goes.
        closing = str_p("}")[on(a, &DefaultScriptActions::endContents)];

        functor =
            !(identifier[on(a, &DefaultScriptActions::word)] >> str_p(
                  ":=")[([&a](const ScriptIterator&, const ScriptIterator&) { a.aliasDefined(); })])
            >> transduced_assertive_p(functorName, "Expecting a functor name.") >> *binding
            >> (str_p(";") | str_p("{")[on(a, &DefaultScriptActions::beginContents)]
                | eps_p[on(a, &DefaultScriptActions::unterminatedFunctor)]);

        statement =
            eps_p(ch_p('@') | alpha_p | '_')
                >> ((+property
                     >> (str_p(";")[on(a, &DefaultScriptActions::scriptProperties)] | functor))
                    | functor)
            | closing;

        script = *statement >> eps_p[on(a, &DefaultScriptActions::endOfStatements)]
                 >> transduced_assertive_p(end_p, "Expecting a functor name.");

        scriptProperties =
            *(+property >> str_p(";")[on(a, &DefaultScriptActions::scriptProperties)]);

        start_ = self.isPropertiesOnly() ? &scriptProperties : &script;
    }

    const Rule& start() const { return *start_; }

    Rule identifier, quoted, property, functorName, reference, binding, closing, functor, statement,
        script, scriptProperties;
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
