#ifndef VRK_TESSALY_IMAGES_UNARYEXPRESSION_H
#define VRK_TESSALY_IMAGES_UNARYEXPRESSION_H

#include "tessaly/images/FixedArityExpression.h"
#include "tessaly/images/ImageExpressionVisitor.h"

namespace Tessaly {

// A prefix operator or a function of one argument.
class UnaryExpression : public FixedArityExpression<1> {
public:
    explicit UnaryExpression(const ImageExpressionPtr& operand)
        : FixedArityExpression<1>({operand})
    {
    }
    const ImageExpression& getOperand() const { return getChild(0); }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
};

} // namespace Tessaly

#endif
