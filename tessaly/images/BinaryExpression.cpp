#include "tessaly/images/BinaryExpression.h"

#include <cassert>
#include <vector>

namespace Tessaly {

namespace {

const BinaryExpression* asLink(const ImageExpression& node)
{
    const auto* binary = dynamic_cast<const BinaryExpression*>(&node);
    return binary && binary->isChainLink() ? binary : nullptr;
}

} // namespace

// Whether the left operand is a link is asked once here, of a node already built,
// rather than at every evaluation.
BinaryExpression::BinaryExpression(const ImageExpressionPtr& left, const ImageExpressionPtr& right)
    : FixedArityExpression<2>({left, right}), leftIsLink_(asLink(*left) != nullptr),
      chainLength_(leftIsLink_ ? asLink(*left)->chainLength_ + 1 : 1)
{
}

double BinaryExpression::combine(double, const EvaluationContext&) const
{
    assert(false && "isChainLink()");
    return 0;
}

const BinaryExpression* BinaryExpression::linkBelow() const
{
    return leftIsLink_ ? static_cast<const BinaryExpression*>(&getLeft()) : nullptr;
}

double BinaryExpression::evaluateChain(const EvaluationContext& context) const
{
    assert(isChainLink() && "isChainLink()");
    std::vector<const BinaryExpression*> links{this};
    while (const BinaryExpression* below = links.back()->linkBelow())
        links.push_back(below);
    double value = links.back()->getLeft().evaluate(context);
    for (auto link = links.rbegin(); link != links.rend(); ++link)
        value = (*link)->combine(value, context);
    return value;
}

} // namespace Tessaly
