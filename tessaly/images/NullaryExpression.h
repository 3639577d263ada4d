#ifndef VRK_TESSALY_IMAGES_NULLARYEXPRESSION_H
#define VRK_TESSALY_IMAGES_NULLARYEXPRESSION_H

#include "tessaly/images/ImageExpression.h"
#include "tessaly/images/ImageExpressionVisitor.h"

namespace Tessaly {

// A leaf: a function of nothing but the cell (rand, line, column, abort).
class NullaryExpression : public ImageExpression {
public:
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
};

} // namespace Tessaly

#endif
