#include "tessaly/images/BlockProgram.h"

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/ImageExpression.h"

#include <limits>

namespace Tessaly {

int BlockProgram::addConstant(double value)
{
    scalars_.push_back({nullptr, value});
    return int(scalars_.size()) - 1;
}

int BlockProgram::addScalar(const ImageExpression& node)
{
    scalars_.push_back({&node, 0});
    return int(scalars_.size()) - 1;
}

int BlockProgram::addFocalColumns(bool nonZero)
{
    focalColumnsNonZero_.push_back(nonZero);
    return int(focalColumnsNonZero_.size()) - 1;
}

std::vector<FocalColumns> BlockProgram::makeFocalColumns() const
{
    std::vector<FocalColumns> columns;
    for (bool nonZero : focalColumnsNonZero_)
        columns.emplace_back(nonZero);
    return columns;
}

std::vector<double> BlockProgram::computeScalars(const CalculationData& data, int imageCount) const
{
    const std::vector<double> noCell(size_t(imageCount), std::numeric_limits<double>::quiet_NaN());
    const EvaluationContext context{noCell, data.values, data.tables, data.images, 0, 0};
    std::vector<double> values;
    values.reserve(scalars_.size());
    for (const Scalar& scalar : scalars_)
        values.push_back(scalar.node ? scalar.node->evaluate(context) : scalar.constant);
    return values;
}

LineReach BlockProgram::getReach(const std::vector<double>& scalars) const
{
    LineReach reach;
    for (const BlockStepPtr& step : steps_)
        step->widenReach(scalars, reach);
    return reach;
}

void BlockProgram::run(BlockFrame& frame) const
{
    for (const BlockStepPtr& step : steps_)
        step->run(frame);
}

} // namespace Tessaly
