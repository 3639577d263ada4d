#include "tessaly/images/ImageExpressionSyntax.h"

#include <map>

namespace Tessaly {

namespace {

struct Syntax {
    const char* spelling;
    ImageExpressionSyntax::Level level;
};

const std::map<std::string, Syntax>& syntaxes()
{
    using S = ImageExpressionSyntax;
    static const std::map<std::string, Syntax> table = {
        {"BooleanOr", {"or", S::Or}},
        {"BooleanAnd", {"and", S::And}},
        {"Equal", {"==", S::Equality}},
        {"NotEqual", {"<>", S::Equality}},
        {"LessThan", {"<", S::Relational}},
        {"LessThanEqual", {"<=", S::Relational}},
        {"GreaterThan", {">", S::Relational}},
        {"GreaterThanEqual", {">=", S::Relational}},
        {"Plus", {"+", S::Additive}},
        {"Minus", {"-", S::Additive}},
        {"Times", {"*", S::Multiplicative}},
        {"Divide", {"/", S::Multiplicative}},
        {"Mod", {"%", S::Multiplicative}},
        {"Pow", {"^", S::Power}},
        {"Catch", {"?", S::Catch}},
        {"UnaryMinus", {"-", S::Primary}},
        {"BooleanNot", {"not", S::Primary}},
        {"ImageNullValue", {"null", S::Primary}},
        {"IsNull", {"isnull", S::Primary}},
        {"Rand", {"rand", S::Primary}},
        {"Abort", {"abort", S::Primary}},
        {"Line", {"line", S::Primary}},
        {"Column", {"column", S::Primary}},
        {"SquaredRoot", {"sqrt", S::Primary}},
        {"Abs", {"abs", S::Primary}},
        {"Exp", {"exp", S::Primary}},
        {"Ceil", {"ceil", S::Primary}},
        {"Floor", {"floor", S::Primary}},
        {"Round", {"round", S::Primary}},
        {"Sin", {"sin", S::Primary}},
        {"Cos", {"cos", S::Primary}},
        {"Tan", {"tan", S::Primary}},
        {"Asin", {"asin", S::Primary}},
        {"Acos", {"acos", S::Primary}},
        {"Atan", {"atan", S::Primary}},
        {"Ln", {"ln", S::Primary}},
        {"Log", {"log", S::Primary}},
        {"Signal", {"signal", S::Primary}},
        {"Maximum", {"max", S::Primary}},
        {"Minimum", {"min", S::Primary}},
        {"TableValue", {"[", S::Primary}},
        {"TableEqualLowerBoundValue", {"[<=", S::Primary}},
        {"TableLowerBoundValue", {"[<", S::Primary}},
        {"TableEqualUpperBoundValue", {"[>=", S::Primary}},
        {"TableUpperBoundValue", {"[>", S::Primary}},
        {"TableClosestValue", {"[><", S::Primary}},
        {"TableInterpoledValue", {"[/", S::Primary}},
        {"TableHasKey", {"[?", S::Primary}},
        {"NeighborhoodCount", {"nbcount", S::Primary}},
        {"NeighborhoodSum", {"nbsum", S::Primary}},
        {"NeighborhoodProduct", {"nbprod", S::Primary}},
        {"NeighborhoodAverage", {"nbaverage", S::Primary}},
        {"NeighborhoodMin", {"nbmin", S::Primary}},
        {"NeighborhoodMax", {"nbmax", S::Primary}},
        {"NeighborhoodMedian", {"nbmedian", S::Primary}},
        {"NeighborhoodMode", {"nbmode", S::Primary}},
        {"NeighborhoodVariance", {"nbvar", S::Primary}},
        {"NeighborhoodStdDeviation", {"nbstddev", S::Primary}},
        {"NeighborhoodConvolution", {"nbconvol", S::Primary}},
    };
    return table;
}

} // namespace

std::string ImageExpressionSyntax::getSpelling(const std::string& nodeName)
{
    const auto found = syntaxes().find(nodeName);
    return found == syntaxes().end() ? std::string() : found->second.spelling;
}

ImageExpressionSyntax::Level ImageExpressionSyntax::getLevel(const std::string& nodeName)
{
    const auto found = syntaxes().find(nodeName);
    return found == syntaxes().end() ? Primary : found->second.level;
}

} // namespace Tessaly
