#include "tessaly/images/FallbackStep.h"

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/ImageExpression.h"
#include "tessaly/images/WorkMeter.h"

#include <limits>

namespace Tessaly {

void FallbackStep::run(BlockFrame& frame) const
{
    std::vector<double> cellValues(size_t(imageCount_), std::numeric_limits<double>::quiet_NaN());
    WorkMeter meter(frame.data.checkpoint);
    EvaluationContext context{cellValues,        frame.data.values,  frame.data.tables,
                              frame.data.images, double(frame.line), 0,
                              &meter};
    double* out = frame.registerAt(result_);
    for (int i = 0; i < frame.count; ++i) {
        for (const auto& loaded : loadedImages_)
            cellValues[size_t(loaded.first - 1)] = frame.registerAt(loaded.second)[i];
        context.column = frame.column + i;
        out[i] = node_.evaluate(context);
    }
}

} // namespace Tessaly
