#ifndef VRK_TESSALY_IMAGES_BINARYEXPRESSION_H
#define VRK_TESSALY_IMAGES_BINARYEXPRESSION_H

#include "tessaly/images/FixedArityExpression.h"
#include "tessaly/images/ImageExpressionVisitor.h"

namespace Tessaly {

// An infix operator or a function of two arguments.
class BinaryExpression : public FixedArityExpression<2> {
public:
    BinaryExpression(const ImageExpressionPtr& left, const ImageExpressionPtr& right)
        : FixedArityExpression<2>({left, right})
    {
    }
    const ImageExpression& getLeft() const { return getChild(0); }
    const ImageExpression& getRight() const { return getChild(1); }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
};

} // namespace Tessaly

#endif
