#ifndef VRK_TESSALY_IMAGES_FUNCTIONNODES_H
#define VRK_TESSALY_IMAGES_FUNCTIONNODES_H

#include "tessaly/images/AbortRequest.h"
#include "tessaly/images/BinaryExpression.h"
#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/NullaryExpression.h"
#include "tessaly/images/RandomNumbers.h"
#include "tessaly/images/UnaryExpression.h"

#include <cmath>
#include <limits>

namespace Tessaly {

// The nodes that differ only by the function they compute. Null (NaN) goes through
// every function unchanged unless the function says otherwise.
template <class Op>
class NullaryFunction : public NullaryExpression {
public:
    static constexpr const char* ClassName = Op::Name;
    double evaluate(const EvaluationContext& context) const override { return Op::apply(context); }
    bool needsOwnCell() const override { return Op::NeedsCell; }
    const char* getName() const override { return Op::Name; }
};

template <class Op>
class UnaryFunction : public UnaryExpression {
public:
    static constexpr const char* ClassName = Op::Name;
    using UnaryExpression::UnaryExpression;
    double evaluate(const EvaluationContext& context) const override
    {
        return Op::apply(evaluateChild(0, context));
    }
    const char* getName() const override { return Op::Name; }
};

template <class Op>
class BinaryFunction : public BinaryExpression {
public:
    static constexpr const char* ClassName = Op::Name;
    using BinaryExpression::BinaryExpression;
    double evaluate(const EvaluationContext& context) const override
    {
        if (isLongChain())
            return evaluateChain(context);
        return Op::apply(evaluateChild(0, context), evaluateChild(1, context));
    }
    bool isChainLink() const override { return true; }
    const char* getName() const override { return Op::Name; }

protected:
    double combine(double left, const EvaluationContext& context) const override
    {
        return Op::apply(left, evaluateChild(1, context));
    }
};

namespace Ops {

constexpr double Null = std::numeric_limits<double>::quiet_NaN();

inline bool eitherNull(double a, double b) { return std::isnan(a) || std::isnan(b); }
inline double truth(bool value) { return value ? 1 : 0; }

#define TESSALY_NULLARY(NAME, NEEDS_CELL, BODY)                                                  \
    struct NAME {                                                                                \
        static constexpr const char* Name = #NAME;                                               \
        static constexpr bool NeedsCell = NEEDS_CELL;                                            \
        static double apply([[maybe_unused]] const EvaluationContext& context) { BODY }          \
    };
TESSALY_NULLARY(Rand, false, return RandomNumbers::next();)
TESSALY_NULLARY(Abort, false, throw AbortRequest();)
TESSALY_NULLARY(Line, true, return context.line;)
TESSALY_NULLARY(Column, true, return context.column;)
#undef TESSALY_NULLARY

#define TESSALY_UNARY(NAME, BODY)                                                                \
    struct NAME {                                                                                \
        static constexpr const char* Name = #NAME;                                               \
        static double apply(double x) { BODY }                                                   \
    };
TESSALY_UNARY(UnaryMinus, return -x;)
TESSALY_UNARY(BooleanNot, return std::isnan(x) ? x : truth(x == 0);)
TESSALY_UNARY(SquaredRoot, return std::sqrt(x);)
TESSALY_UNARY(Abs, return std::fabs(x);)
TESSALY_UNARY(Exp, return std::exp(x);)
TESSALY_UNARY(Ceil, return std::ceil(x);)
TESSALY_UNARY(Floor, return std::floor(x);)
TESSALY_UNARY(Round, return std::round(x);)
TESSALY_UNARY(Sin, return std::sin(x);)
TESSALY_UNARY(Cos, return std::cos(x);)
TESSALY_UNARY(Tan, return std::tan(x);)
TESSALY_UNARY(Asin, return std::asin(x);)
TESSALY_UNARY(Acos, return std::acos(x);)
TESSALY_UNARY(Atan, return std::atan(x);)
TESSALY_UNARY(Ln, return x > 0 ? std::log(x) : Null;)
TESSALY_UNARY(Log, return x > 0 ? std::log10(x) : Null;)
TESSALY_UNARY(Signal, return std::isnan(x) ? x : truth(x > 0) - truth(x < 0);)
#undef TESSALY_UNARY

#define TESSALY_BINARY(NAME, BODY)                                                                 \
    struct NAME {                                                                                  \
        static constexpr const char* Name = #NAME;                                                 \
        template <class T>                                                                         \
        static T apply(T a, T b)                                                                   \
        {                                                                                          \
            BODY                                                                                   \
        }                                                                                          \
    };
// `holds` is the test alone, for the kernels that select on it without making a truth
// value first. `holds` and the arithmetic are templates so that the fused kernels apply
// them to vectors of cells as well as to one cell.
#define TESSALY_LOGICAL(NAME, RESULT)                                                              \
    struct NAME {                                                                                  \
        static constexpr const char* Name = #NAME;                                                 \
        template <class T>                                                                         \
        static auto holds(T a, T b)                                                                \
        {                                                                                          \
            return RESULT;                                                                         \
        }                                                                                          \
        static double apply(double a, double b)                                                    \
        {                                                                                          \
            return eitherNull(a, b) ? Null : truth(RESULT);                                        \
        }                                                                                          \
    };
TESSALY_LOGICAL(BooleanOr, a != 0 || b != 0)
TESSALY_LOGICAL(BooleanAnd, a != 0 && b != 0)
TESSALY_LOGICAL(Equal, a == b)
TESSALY_LOGICAL(NotEqual, a != b)
TESSALY_LOGICAL(LessThan, a < b)
TESSALY_LOGICAL(LessThanEqual, a <= b)
TESSALY_LOGICAL(GreaterThan, a > b)
TESSALY_LOGICAL(GreaterThanEqual, a >= b)
#undef TESSALY_LOGICAL
TESSALY_BINARY(Plus, return a + b;)
TESSALY_BINARY(Minus, return a - b;)
TESSALY_BINARY(Times, return a * b;)
TESSALY_BINARY(Divide, return b == 0 ? Null : a / b;)
TESSALY_BINARY(Mod, return b == 0 ? Null : a - b * std::floor(a / b);)
// std::pow gives 1 for x ^ 0 and 1 ^ x even where x is NaN; null must stay null.
TESSALY_BINARY(Pow, return eitherNull(a, b) ? Null : std::pow(a, b);)
TESSALY_BINARY(Maximum, return eitherNull(a, b) ? Null : std::fmax(a, b);)
TESSALY_BINARY(Minimum, return eitherNull(a, b) ? Null : std::fmin(a, b);)
#undef TESSALY_BINARY

} // namespace Ops

namespace Nodes {

using Rand = NullaryFunction<Ops::Rand>;
using Abort = NullaryFunction<Ops::Abort>;
using Line = NullaryFunction<Ops::Line>;
using Column = NullaryFunction<Ops::Column>;

using UnaryMinus = UnaryFunction<Ops::UnaryMinus>;
using BooleanNot = UnaryFunction<Ops::BooleanNot>;
using SquaredRoot = UnaryFunction<Ops::SquaredRoot>;
using Abs = UnaryFunction<Ops::Abs>;
using Exp = UnaryFunction<Ops::Exp>;
using Ceil = UnaryFunction<Ops::Ceil>;
using Floor = UnaryFunction<Ops::Floor>;
using Round = UnaryFunction<Ops::Round>;
using Sin = UnaryFunction<Ops::Sin>;
using Cos = UnaryFunction<Ops::Cos>;
using Tan = UnaryFunction<Ops::Tan>;
using Asin = UnaryFunction<Ops::Asin>;
using Acos = UnaryFunction<Ops::Acos>;
using Atan = UnaryFunction<Ops::Atan>;
using Ln = UnaryFunction<Ops::Ln>;
using Log = UnaryFunction<Ops::Log>;
using Signal = UnaryFunction<Ops::Signal>;

using BooleanOr = BinaryFunction<Ops::BooleanOr>;
using BooleanAnd = BinaryFunction<Ops::BooleanAnd>;
using Equal = BinaryFunction<Ops::Equal>;
using NotEqual = BinaryFunction<Ops::NotEqual>;
using LessThan = BinaryFunction<Ops::LessThan>;
using LessThanEqual = BinaryFunction<Ops::LessThanEqual>;
using GreaterThan = BinaryFunction<Ops::GreaterThan>;
using GreaterThanEqual = BinaryFunction<Ops::GreaterThanEqual>;
using Plus = BinaryFunction<Ops::Plus>;
using Minus = BinaryFunction<Ops::Minus>;
using Times = BinaryFunction<Ops::Times>;
using Divide = BinaryFunction<Ops::Divide>;
using Mod = BinaryFunction<Ops::Mod>;
using Pow = BinaryFunction<Ops::Pow>;
using Maximum = BinaryFunction<Ops::Maximum>;
using Minimum = BinaryFunction<Ops::Minimum>;

// a ? b: b only where a is null; b is not evaluated elsewhere.
class Catch : public BinaryExpression {
public:
    using BinaryExpression::BinaryExpression;
    double evaluate(const EvaluationContext& context) const override
    {
        if (isLongChain())
            return evaluateChain(context);
        return combine(evaluateChild(0, context), context);
    }
    bool isChainLink() const override { return true; }
    const char* getName() const override { return "Catch"; }

protected:
    double combine(double guarded, const EvaluationContext& context) const override
    {
        return std::isnan(guarded) ? evaluateChild(1, context) : guarded;
    }
};

} // namespace Nodes
} // namespace Tessaly

#endif
