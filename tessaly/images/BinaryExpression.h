#ifndef VRK_TESSALY_IMAGES_BINARYEXPRESSION_H
#define VRK_TESSALY_IMAGES_BINARYEXPRESSION_H

#include "tessaly/images/FixedArityExpression.h"
#include "tessaly/images/ImageExpressionVisitor.h"

namespace Tessaly {

struct EvaluationContext;

// An infix operator or a function of two arguments.
//
// The operators whose value is their left operand's value combined with their right
// operand (the arithmetic, comparisons, logic and `?`) are links: a chain of them
// (1 + 1 + ... + 1) goes one node deeper per term, down the left side. A link at the
// top of a long chain evaluates it from the bottom up in a loop, so that no length of
// chain overflows the stack; a short one recurses, which costs nothing extra.
class BinaryExpression : public FixedArityExpression<2> {
public:
    BinaryExpression(const ImageExpressionPtr& left, const ImageExpressionPtr& right);
    const ImageExpression& getLeft() const { return getChild(0); }
    const ImageExpression& getRight() const { return getChild(1); }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }

    // Whether the node is a link of a chain.
    virtual bool isChainLink() const { return false; }

protected:
    // A link's value, given its left operand's value.
    virtual double combine(double left, const EvaluationContext& context) const;
    // Whether the links down the left side, this one included, are enough to evaluate
    // in a loop.
    bool isLongChain() const { return chainLength_ >= LongChain; }
    // A link's value, its chain evaluated from the bottom up in a loop.
    double evaluateChain(const EvaluationContext& context) const;

private:
    static constexpr size_t LongChain = 32;

    // The link below this one on the left side, or null.
    const BinaryExpression* linkBelow() const;

    bool leftIsLink_;
    size_t chainLength_;
};

} // namespace Tessaly

#endif
