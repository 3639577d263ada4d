#ifndef VRK_TESSALY_IMAGES_NEIGHBORHOODQUATERNARYEXPRESSION_H
#define VRK_TESSALY_IMAGES_NEIGHBORHOODQUATERNARYEXPRESSION_H

#include "tessaly/images/FixedArityExpression.h"
#include "tessaly/images/ImageExpressionVisitor.h"

#include <vector>

namespace Tessaly {

// A statistic over a window of an image around the current cell. The four
// arguments, evaluated at the cell and rounded down, are the window's height and width
// and the line and column of the current cell inside the window, counted from 0. Cells
// outside the image and null cells are left out.
class NeighborhoodQuaternaryExpression : public FixedArityExpression<4> {
public:
    NeighborhoodQuaternaryExpression(int image, const Children& window)
        : FixedArityExpression<4>(window), image_(image)
    {
    }
    int getImage() const { return image_; }

    void addOwnIndexes(EntityKind kind, std::set<int>& indexes) const override
    {
        addOwnIndex(EntityKind::Image, image_, kind, indexes);
    }
    bool needsOwnCell() const override { return true; }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }

protected:
    // The window's cells that hold a value, each with its place in the window counted
    // line by line from 0.
    struct Cell {
        double place;
        double value;
    };
    std::vector<Cell> collectWindow(const EvaluationContext& context) const;

private:
    int image_;
};

} // namespace Tessaly

#endif
