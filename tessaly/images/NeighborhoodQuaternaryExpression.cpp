#include "tessaly/images/NeighborhoodQuaternaryExpression.h"

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/Image.h"
#include "tessaly/images/WorkMeter.h"

#include <algorithm>
#include <cmath>

namespace Tessaly {

std::vector<NeighborhoodQuaternaryExpression::Cell>
NeighborhoodQuaternaryExpression::collectWindow(const EvaluationContext& context) const
{
    std::vector<Cell> cells;
    double window[4];
    for (size_t i = 0; i < 4; ++i) {
        window[i] = std::floor(evaluateChild(i, context));
        if (!std::isfinite(window[i]))
            return cells;
    }
    const Image& image = context.getImage(image_);
    // Only the part of the window that overlaps the image is read, so that a window far
    // larger than the image costs no more than the image.
    const double top = context.line - window[2];
    const double left = context.column - window[3];
    const double firstLine = std::max(top, 0.0);
    const double lastLine = std::min(top + window[0], double(image.getLineCount())) - 1;
    const double firstColumn = std::max(left, 0.0);
    const double lastColumn = std::min(left + window[1], double(image.getColumnCount())) - 1;
    for (double l = firstLine; l <= lastLine; ++l) {
        if (context.meter)
            context.meter->add(lastColumn - firstColumn + 1);
        for (double c = firstColumn; c <= lastColumn; ++c) {
            const double value = image.getValue(int(l), int(c));
            if (!std::isnan(value))
                cells.push_back({(l - top) * window[1] + (c - left), value});
        }
    }
    return cells;
}

} // namespace Tessaly
