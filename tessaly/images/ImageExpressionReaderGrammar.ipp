// The rules of the formula language, included by one translation unit per scanner kind.

#include "tessaly/images/ImageExpressionReaderGrammar.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "tessaly/images/CompoundNodes.h"
#include "tessaly/images/FunctionNodes.h"
#include "tessaly/images/ImageExpressionReaderLazyFunctions.h"
#include "tessaly/images/ImageExpressionSyntax.h"
#include "tessaly/images/LeafNodes.h"
#include "tessaly/images/NeighborhoodNodes.h"
#include "tessaly/images/TableNodes.h"

#include <boost/spirit/include/classic_attribute.hpp>
#include <boost/spirit/include/classic_core.hpp>
#include <boost/spirit/include/classic_symbols.hpp>
#include <boost/spirit/include/phoenix1_functions.hpp>
#include <boost/spirit/include/phoenix1_operators.hpp>
#include <boost/spirit/include/phoenix1_primitives.hpp>

#include <cstdlib>
#include <string>

namespace Tessaly {

namespace {

namespace sc = boost::spirit::classic;
using IER::NodeBuilder;
using IER::Operands;

struct one_expression_closure : sc::closure<one_expression_closure, ImageExpressionPtr> {
    member1 val;
};
// An operator level: the tree so far and the operator just read.
struct operator_closure : sc::closure<operator_closure, ImageExpressionPtr, NodeBuilder> {
    member1 val;
    member2 builder;
};
// A construct of several pieces: the node class chosen by its first token and the
// operands gathered until its end.
struct call_closure : sc::closure<call_closure, ImageExpressionPtr, NodeBuilder, Operands> {
    member1 val;
    member2 builder;
    member3 operands;
};
struct identifier_closure : sc::closure<identifier_closure, int, unsigned> {
    member1 val;
    member2 number;
};
struct top_level_expression_closure
    : sc::closure<top_level_expression_closure, std::shared_ptr<TopLevelImageExpression>> {
    member1 val;
};

const char* const Subexpression = "Expecting an image subexpression.";
const char* const OpenParenthesis = "Expecting '('.";
const char* const CloseParenthesis = "Expecting ')'.";
const char* const Comma = "Expecting ','.";
const char* const CloseBracket = "Expecting ']'.";
const char* const CloseBrace = "Expecting '}'.";
const char* const ImageIdentifier = "Expecting an image identifier.";
const char* const TableIdentifier = "Expecting a table identifier.";
const char* const KeyName = "Expecting a valid predefined key name.";
const char* const TableForms =
    "Expecting '[==', '[=', '[' '[<=', '[<', '[>=', '[>', '[><', '[/' or '{'.";

// How deep parts of a formula may lie inside one another (parentheses, signs, calls,
// conditionals, lookups): each level takes the machine stack of the whole chain of
// operator levels, and a formula nested thousands deep would overflow it.
const int MaxNesting = 100;

// Counts the levels of its subject nested in one another, and refuses one too many.
template <class SubjectT>
struct nesting_guard : public sc::unary<SubjectT, sc::parser<nesting_guard<SubjectT>>> {
    using self_t = nesting_guard<SubjectT>;
    using base_t = sc::unary<SubjectT, sc::parser<self_t>>;
    using parser_category_t = sc::unary_parser_category;

    template <class ScannerT>
    struct result {
        using type = typename sc::parser_result<SubjectT, ScannerT>::type;
    };

    nesting_guard(const SubjectT& subject, int* depth) : base_t(subject), depth_(depth) {}

    template <class ScannerT>
    typename sc::parser_result<self_t, ScannerT>::type parse(const ScannerT& scan) const
    {
        if (*depth_ >= MaxNesting)
            VRK::ExceptionUtils::raise<VRK::Exception>(
                "The formula nests more than " + std::to_string(MaxNesting)
                + " levels of parentheses, signs, calls, conditionals or lookups.");
        ++*depth_;
        struct Leave {
            int* depth;
            ~Leave() { --*depth; }
        } leave{depth_};
        return this->subject().parse(scan);
    }

    int* depth_;
};

template <class SubjectT>
nesting_guard<SubjectT> nested(const SubjectT& subject, int* depth)
{
    return nesting_guard<SubjectT>(subject, depth);
}

template <class ParserT>
VRK::Spirit::transduced_assertive_parser<typename sc::as_parser<ParserT>::type>
expect(const ParserT& parser, const char* message)
{
    return VRK::Spirit::transduced_assertive_p(parser, message);
}

// Enters an identifier into the dictionary with the place where it was read.
struct add_entity_impl {
    add_entity_impl(EntityKind kind, const std::shared_ptr<ImageExpressionDictionary>* dictionary)
        : kind_(kind), dictionary_(dictionary)
    {
    }
    template <class A, class B>
    struct result {
        using type = int;
    };
    template <class IteratorT>
    int operator()(unsigned number, const IteratorT& where) const
    {
        const auto position = VRK::Spirit::detail::positionOf(where);
        ImageExpressionDictionary& dictionary = **dictionary_;
        if (kind_ == EntityKind::Image)
            return dictionary.addImageId(int(number), position);
        if (kind_ == EntityKind::Table)
            return dictionary.addTableId(int(number), position);
        return dictionary.addVariableId(int(number), position);
    }

private:
    EntityKind kind_;
    const std::shared_ptr<ImageExpressionDictionary>* dictionary_;
};

struct add_named_entity_impl {
    add_named_entity_impl(EntityKind kind,
                          const std::shared_ptr<ImageExpressionDictionary>* dictionary)
        : kind_(kind), dictionary_(dictionary)
    {
    }
    template <class A, class B>
    struct result {
        using type = int;
    };
    // The text read begins with the prefix character.
    template <class IteratorT>
    int operator()(IteratorT first, const IteratorT& last) const
    {
        const auto position = VRK::Spirit::detail::positionOf(first);
        const std::string name(++first, last);
        ImageExpressionDictionary& dictionary = **dictionary_;
        if (kind_ == EntityKind::Image)
            return dictionary.addImageName(name, position);
        if (kind_ == EntityKind::Table)
            return dictionary.addTableName(name, position);
        return dictionary.addVariableName(name, position);
    }

private:
    EntityKind kind_;
    const std::shared_ptr<ImageExpressionDictionary>* dictionary_;
};

// Converts exactly the characters of the literal, so that a number written with enough
// digits reads back to the very same double.
struct make_value_impl {
    template <class A, class B>
    struct result {
        using type = ImageExpressionPtr;
    };
    template <class IteratorT>
    ImageExpressionPtr operator()(const IteratorT& first, const IteratorT& last) const
    {
        const std::string text(first, last);
        return std::make_shared<Nodes::Value>(std::strtod(text.c_str(), nullptr));
    }
};

template <class Node>
NodeBuilder builderOf()
{
    if constexpr (std::is_base_of<NullaryExpression, Node>::value)
        return &IER::nullary_expression_impl<Node>::build;
    else if constexpr (std::is_base_of<UnaryExpression, Node>::value
                       && !std::is_base_of<TableExpression, Node>::value)
        return &IER::unary_expression_impl<Node>::build;
    else
        return &IER::binary_expression_impl<Node>::build;
}

// Adds the node's own spelling, then its synonyms.
template <class Node>
void addSpellings(sc::symbols<NodeBuilder>& table, std::initializer_list<const char*> synonyms = {})
{
    const NodeBuilder builder = builderOf<Node>();
    table.add(ImageExpressionSyntax::getSpelling(Node::ClassName).c_str(), builder);
    for (const char* synonym : synonyms)
        table.add(synonym, builder);
}

} // namespace

template <class ScannerT>
struct ImageExpressionReaderGrammar<ScannerT>::Rules {
    using ExpressionRule = sc::rule<ScannerT, typename one_expression_closure::context_t>;
    using OperatorRule = sc::rule<ScannerT, typename operator_closure::context_t>;
    using CallRule = sc::rule<ScannerT, typename call_closure::context_t>;
    using IdentifierRule = sc::rule<ScannerT, typename identifier_closure::context_t>;
    using TopRule = sc::rule<ScannerT, typename top_level_expression_closure::context_t>;

    explicit Rules(const std::shared_ptr<ImageExpressionDictionary>* dictionary);

    void defineSymbols();
    void defineLevels();
    void defineIdentifiers(const std::shared_ptr<ImageExpressionDictionary>* dictionary);
    void definePrimary();
    void defineCalls();
    void defineLookups();

    template <class OperandT, class GuardT>
    void defineLevel(OperatorRule& level, OperandT& operand, const GuardT& guard,
                     const sc::symbols<NodeBuilder>& operators);

    TopRule top;
    ExpressionRule expression, power, catchLevel, number;
    OperatorRule orLevel, andLevel, equality, relational, additive, multiplicative;
    CallRule primary, call, conditional, tableLookup, imageValue;
    IdentifierRule image, table, variable;

    sc::symbols<NodeBuilder> orOperators, andOperators, equalityOperators, relationalOperators,
        additiveOperators, multiplicativeOperators;
    sc::symbols<NodeBuilder> nullaryFunctions, unaryFunctions, binaryFunctions,
        neighborhoodFunctions, imageFunctions, bracketForms;
    sc::symbols<int> keyNames;
    // The levels of `primary` being parsed inside one another.
    int nesting = 0;

    phoenix::function<IER::build_impl> build;
    phoenix::function<IER::build_binary_impl> buildBinary;
    phoenix::function<IER::push_operand_impl> push;
    phoenix::function<IER::set_image_impl> setImage;
    phoenix::function<IER::set_table_impl> setTable;
    phoenix::function<IER::set_key_name_impl> setKeyName;
    phoenix::function<IER::binary_expression_impl<Nodes::Pow>> makePow;
    phoenix::function<IER::binary_expression_impl<Nodes::Catch>> makeCatch;
    phoenix::function<IER::unary_expression_impl<Nodes::UnaryMinus>> makeMinus;
    phoenix::function<IER::unary_expression_impl<Nodes::BooleanNot>> makeNot;
    phoenix::function<IER::indexed_expression_impl<Nodes::VariableValue>> makeVariable;
    phoenix::function<make_value_impl> makeValue;
};

template <class ScannerT>
ImageExpressionReaderGrammar<ScannerT>::Rules::Rules(
    const std::shared_ptr<ImageExpressionDictionary>* dictionary)
{
    using phoenix::arg1;
    phoenix::function<IER::top_level_expression_impl> makeTop(
        (IER::top_level_expression_impl(dictionary)));
    defineSymbols();
    defineIdentifiers(dictionary);
    defineLevels();
    definePrimary();
    defineCalls();
    defineLookups();
    top = expect(expression, Subexpression)[top.val = makeTop(arg1)];
}

template <class ScannerT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::defineSymbols()
{
    using namespace Nodes;
    addSpellings<BooleanOr>(orOperators, {"||"});
    addSpellings<BooleanAnd>(andOperators, {"&&"});
    addSpellings<NotEqual>(equalityOperators, {"/=", "!="});
    addSpellings<Equal>(equalityOperators, {"="});
    addSpellings<LessThan>(relationalOperators);
    addSpellings<LessThanEqual>(relationalOperators);
    addSpellings<GreaterThan>(relationalOperators);
    addSpellings<GreaterThanEqual>(relationalOperators);
    addSpellings<Minus>(additiveOperators);
    addSpellings<Plus>(additiveOperators);
    addSpellings<Mod>(multiplicativeOperators);
    addSpellings<Divide>(multiplicativeOperators);
    addSpellings<Times>(multiplicativeOperators);
    addSpellings<Rand>(nullaryFunctions);
    addSpellings<Abort>(nullaryFunctions);
    addSpellings<Line>(nullaryFunctions);
    addSpellings<Column>(nullaryFunctions);
    addSpellings<SquaredRoot>(unaryFunctions);
    addSpellings<Abs>(unaryFunctions);
    addSpellings<Exp>(unaryFunctions);
    addSpellings<Ceil>(unaryFunctions);
    addSpellings<Floor>(unaryFunctions);
    addSpellings<Round>(unaryFunctions);
    addSpellings<Sin>(unaryFunctions);
    addSpellings<Cos>(unaryFunctions);
    addSpellings<Tan>(unaryFunctions);
    addSpellings<Asin>(unaryFunctions);
    addSpellings<Acos>(unaryFunctions);
    addSpellings<Atan>(unaryFunctions);
    addSpellings<Ln>(unaryFunctions);
    addSpellings<Log>(unaryFunctions);
    addSpellings<Signal>(unaryFunctions);
    binaryFunctions.add("max", &IER::binary_expression_impl<Maximum>::build);
    binaryFunctions.add("min", &IER::binary_expression_impl<Minimum>::build);
    imageFunctions.add("isnull", &IER::indexed_expression_impl<IsNull>::build);
    imageFunctions.add("null", &IER::indexed_expression_impl<ImageNullValue>::build);
    neighborhoodFunctions.add("nbcount", &IER::quinternary_expression_impl<NeighborhoodCount>::build)(
        "nbsum", &IER::quinternary_expression_impl<NeighborhoodSum>::build)(
        "nbprod", &IER::quinternary_expression_impl<NeighborhoodProduct>::build)(
        "nbaverage", &IER::quinternary_expression_impl<NeighborhoodAverage>::build)(
        "nbmin", &IER::quinternary_expression_impl<NeighborhoodMin>::build)(
        "nbmax", &IER::quinternary_expression_impl<NeighborhoodMax>::build)(
        "nbmedian", &IER::quinternary_expression_impl<NeighborhoodMedian>::build)(
        "nbmode", &IER::quinternary_expression_impl<NeighborhoodMode>::build)(
        "nbvar", &IER::quinternary_expression_impl<NeighborhoodVariance>::build)(
        "nbstddev", &IER::quinternary_expression_impl<NeighborhoodStdDeviation>::build);
    bracketForms.add("[", &IER::binary_expression_impl<TableValue>::build)(
        "[=", &IER::binary_expression_impl<TableValue>::build)(
        "[==", &IER::binary_expression_impl<TableValue>::build)(
        "[<=", &IER::binary_expression_impl<TableEqualLowerBoundValue>::build)(
        "[<", &IER::binary_expression_impl<TableLowerBoundValue>::build)(
        "[>=", &IER::binary_expression_impl<TableEqualUpperBoundValue>::build)(
        "[>", &IER::binary_expression_impl<TableUpperBoundValue>::build)(
        "[><", &IER::binary_expression_impl<TableClosestValue>::build)(
        "[/", &IER::binary_expression_impl<TableInterpoledValue>::build)(
        "[?", &IER::binary_expression_impl<TableHasKey>::build)(
        "[=?", &IER::binary_expression_impl<TableHasKey>::build)(
        "[==?", &IER::binary_expression_impl<TableHasKey>::build);
    for (const std::string& name : LookupTable::getPredefinedKeyNames())
        keyNames.add(name.c_str(), 0);
}

// Every level reads an operand of the next tighter level, then operator and operand
// pairs, building to the left.
template <class ScannerT>
template <class OperandT, class GuardT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::defineLevel(
    OperatorRule& level, OperandT& operand, const GuardT& guard,
    const sc::symbols<NodeBuilder>& operators)
{
    using phoenix::arg1;
    level = operand[level.val = arg1]
            >> *((guard >> operators[level.builder = arg1])
                 >> expect(operand, Subexpression)[level.val = buildBinary(level.builder, level.val,
                                                                           arg1)]);
}

template <class ScannerT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::defineLevels()
{
    using phoenix::arg1;
    expression = orLevel[expression.val = arg1];
    defineLevel(orLevel, andLevel, sc::eps_p, orOperators);
    defineLevel(andLevel, equality, sc::eps_p, andOperators);
    defineLevel(equality, relational, sc::eps_p, equalityOperators);
    // "<>" belongs to the equality level.
    defineLevel(relational, additive, ~sc::eps_p(sc::str_p("<>")), relationalOperators);
    defineLevel(additive, multiplicative, sc::eps_p, additiveOperators);
    // "/=" belongs to the equality level.
    defineLevel(multiplicative, power, ~sc::eps_p(sc::str_p("/=")), multiplicativeOperators);
    // Power is the one level that builds to the right.
    power = catchLevel[power.val = arg1]
            >> !(sc::ch_p('^')
                 >> expect(nested(power, &nesting), Subexpression)[power.val =
                                                                       makePow(power.val, arg1)]);
    catchLevel =
        primary[catchLevel.val = arg1]
        >> *(sc::ch_p('?')
             >> expect(primary, Subexpression)[catchLevel.val = makeCatch(catchLevel.val, arg1)]);
}

template <class ScannerT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::defineIdentifiers(
    const std::shared_ptr<ImageExpressionDictionary>* dictionary)
{
    using phoenix::arg1;
    using phoenix::arg2;
    const auto name = (sc::alpha_p | '_') >> *(sc::alnum_p | '_');
    const auto define = [&](IdentifierRule& rule, EntityKind kind) {
        phoenix::function<add_entity_impl> addNumber((add_entity_impl(kind, dictionary)));
        phoenix::function<add_named_entity_impl> addName((add_named_entity_impl(kind, dictionary)));
        rule = sc::lexeme_d[sc::ch_p(ImageExpressionDictionary::getNumberPrefix(kind))
                            >> sc::uint_p[rule.number = arg1]][rule.val = addNumber(rule.number, arg1)]
               | sc::lexeme_d[sc::ch_p(ImageExpressionDictionary::getNamePrefix(kind))
                              >> name][rule.val = addName(arg1, arg2)];
    };
    define(image, EntityKind::Image);
    define(table, EntityKind::Table);
    define(variable, EntityKind::Value);
    number = sc::lexeme_d[sc::ureal_p >> sc::eps_p][number.val = makeValue(arg1, arg2)];
}

template <class ScannerT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::definePrimary()
{
    using phoenix::arg1;
    primary = nested((sc::ch_p('(') >> expect(expression, Subexpression)[primary.val = arg1]
               >> expect(sc::ch_p(')'), CloseParenthesis))
              | (sc::ch_p('-') >> expect(primary, Subexpression)[primary.val = makeMinus(arg1)])
              | (sc::ch_p('+') >> expect(primary, Subexpression)[primary.val = arg1])
              | ((sc::str_p("not") | sc::lexeme_d[sc::ch_p('!') >> ~sc::eps_p(sc::ch_p('='))])
                 >> expect(primary, Subexpression)[primary.val = makeNot(arg1)])
              | number[primary.val = arg1] | call[primary.val = arg1]
              | conditional[primary.val = arg1] | tableLookup[primary.val = arg1]
              | imageValue[primary.val = arg1] | variable[primary.val = makeVariable(arg1)],
                     &nesting);
}

template <class ScannerT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::defineCalls()
{
    using phoenix::arg1;
    const auto open = expect(sc::ch_p('('), OpenParenthesis);
    const auto close = expect(sc::ch_p(')'), CloseParenthesis);
    const auto argument = expect(sc::ch_p(','), Comma)
                          >> expect(expression, Subexpression)[push(call.operands, arg1)];
    const auto firstArgument = expect(expression, Subexpression)[push(call.operands, arg1)];
    const auto imageArgument = expect(image, ImageIdentifier)[setImage(call.operands, arg1)];
    const auto window = argument >> argument >> argument >> argument;
    const auto built = call.val = build(call.builder, call.operands);
    call = nullaryFunctions[call.val = build(arg1, call.operands)]
           | (unaryFunctions[call.builder = arg1] >> open >> firstArgument >> close)[built]
           | (binaryFunctions[call.builder = arg1] >> open >> firstArgument >> argument
              >> close)[built]
           | (sc::str_p("nbconvol")[call.builder = phoenix::val(
                  &IER::sixternary_expression_impl<Nodes::NeighborhoodConvolution>::build)]
              >> open >> imageArgument >> expect(sc::ch_p(','), Comma)
              >> expect(table, TableIdentifier)[setTable(call.operands, arg1)] >> window
              >> close)[built]
           | (neighborhoodFunctions[call.builder = arg1] >> open >> imageArgument >> window
              >> close)[built]
           | (imageFunctions[call.builder = arg1] >> open >> imageArgument >> close)[built];
    conditional =
        (sc::str_p("if") >> expect(expression, Subexpression)[push(conditional.operands, arg1)]
         >> expect(sc::str_p("then"), "Expecting \"then\".")
         >> expect(expression, Subexpression)[push(conditional.operands, arg1)]
         >> expect(sc::str_p("else"), "Expecting \"else\".")
         >> expect(expression, Subexpression)[push(conditional.operands, arg1)])
            [conditional.val = build(
                 phoenix::val(&IER::ternary_expression_impl<Nodes::IfThenElse>::build),
                 conditional.operands)];
}

template <class ScannerT>
void ImageExpressionReaderGrammar<ScannerT>::Rules::defineLookups()
{
    using phoenix::arg1;
    using phoenix::arg2;
    const auto key = expect(expression, Subexpression)[push(tableLookup.operands, arg1)];
    tableLookup =
        table[setTable(tableLookup.operands, arg1)]
        >> ((sc::str_p("[\"")
             >> expect(sc::lexeme_d[keyNames >> sc::ch_p('"')][setKeyName(tableLookup.operands, arg1,
                                                                           arg2)],
                       KeyName)
             >> expect(sc::ch_p(']'), CloseBracket))
                [tableLookup.val = build(
                     phoenix::val(&IER::named_expression_impl<Nodes::TableNamedValue>::build),
                     tableLookup.operands)]
            | (sc::ch_p('{') >> key >> expect(sc::ch_p('}'), CloseBrace))
                  [tableLookup.val = build(
                       phoenix::val(&IER::binary_expression_impl<Nodes::TableValue>::build),
                       tableLookup.operands)]
            | (bracketForms[tableLookup.builder = arg1] >> key
               >> expect(sc::ch_p(']'), CloseBracket))[tableLookup.val = build(
                  tableLookup.builder, tableLookup.operands)]
            | expect(sc::nothing_p, TableForms));
    imageValue =
        image[setImage(imageValue.operands, arg1)]
        >> ((sc::ch_p('[') >> expect(expression, Subexpression)[push(imageValue.operands, arg1)]
             >> expect(sc::ch_p(','), Comma)
             >> expect(expression, Subexpression)[push(imageValue.operands, arg1)]
             >> expect(sc::ch_p(']'), CloseBracket))
                [imageValue.val = build(
                     phoenix::val(&IER::ternary_expression_impl<Nodes::ImageValue2>::build),
                     imageValue.operands)]
            | sc::eps_p[imageValue.val = build(
                  phoenix::val(&IER::indexed_expression_impl<Nodes::ImageValue>::build),
                  imageValue.operands)]);
}

template <class ScannerT>
ImageExpressionReaderGrammar<ScannerT>::ImageExpressionReaderGrammar()
    : rules_(new Rules(&dictionary_))
{
}

template <class ScannerT>
ImageExpressionReaderGrammar<ScannerT>::~ImageExpressionReaderGrammar() = default;

template <class ScannerT>
std::ptrdiff_t
ImageExpressionReaderGrammar<ScannerT>::parse(const ScannerT& scan,
                                              std::shared_ptr<TopLevelImageExpression>& result) const
{
    using phoenix::arg1;
    const_cast<std::shared_ptr<ImageExpressionDictionary>&>(dictionary_) =
        std::make_shared<ImageExpressionDictionary>();
    const auto hit = rules_->top.parse(scan);
    if (!hit)
        return -1;
    result = hit.value();
    return hit.length();
}

} // namespace Tessaly
