#include "tessaly/images/NeighborhoodQuaternaryExpression.h"

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/Image.h"

#include <cmath>

namespace Tessaly {

std::vector<NeighborhoodQuaternaryExpression::Cell>
NeighborhoodQuaternaryExpression::collectWindow(const EvaluationContext& context) const
{
    std::vector<Cell> cells;
    double bounds[4];
    for (size_t i = 0; i < 4; ++i) {
        bounds[i] = std::floor(evaluateChild(i, context));
        if (!std::isfinite(bounds[i]))
            return cells;
    }
    const Image& image = context.getImage(image_);
    const int line = int(context.line);
    const int column = int(context.column);
    const int width = int(bounds[3] - bounds[1]) + 1;
    for (int l = int(bounds[0]); l <= int(bounds[2]); ++l)
        for (int c = int(bounds[1]); c <= int(bounds[3]); ++c) {
            const double value = image.getValueOrNull(line + l, column + c);
            if (!std::isnan(value))
                cells.push_back({(l - int(bounds[0])) * width + (c - int(bounds[1])), value});
        }
    return cells;
}

} // namespace Tessaly
