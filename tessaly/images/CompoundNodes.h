#ifndef VRK_TESSALY_IMAGES_COMPOUNDNODES_H
#define VRK_TESSALY_IMAGES_COMPOUNDNODES_H

#include "tessaly/images/BinaryExpression.h"
#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/Image.h"

#include <cmath>
#include <limits>

namespace Tessaly {
namespace Nodes {

// i[line, column]: the image at a computed cell, the coordinates rounded down; null
// outside the image.
class ImageValue2 : public BinaryExpression {
public:
    ImageValue2(int image, const ImageExpressionPtr& line, const ImageExpressionPtr& column)
        : BinaryExpression(line, column), image_(image)
    {
    }
    int getImage() const { return image_; }
    double evaluate(const EvaluationContext& context) const override
    {
        const double line = std::floor(evaluateChild(0, context));
        const double column = std::floor(evaluateChild(1, context));
        if (!std::isfinite(line) || !std::isfinite(column))
            return std::numeric_limits<double>::quiet_NaN();
        return context.getImage(image_).getValueOrNull(int(line), int(column));
    }
    void addOwnIndexes(EntityKind kind, std::set<int>& indexes) const override
    {
        addOwnIndex(EntityKind::Image, image_, kind, indexes);
    }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
    const char* getName() const override { return "ImageValue2"; }

private:
    int image_;
};

// Only the branch taken is evaluated; a null condition gives null.
class IfThenElse : public FixedArityExpression<3> {
public:
    IfThenElse(const ImageExpressionPtr& condition, const ImageExpressionPtr& then,
               const ImageExpressionPtr& otherwise)
        : FixedArityExpression<3>({condition, then, otherwise})
    {
    }
    double evaluate(const EvaluationContext& context) const override
    {
        const double condition = evaluateChild(0, context);
        if (std::isnan(condition))
            return condition;
        return evaluateChild(condition != 0 ? 1 : 2, context);
    }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
    const char* getName() const override { return "IfThenElse"; }
};

} // namespace Nodes
} // namespace Tessaly

#endif
