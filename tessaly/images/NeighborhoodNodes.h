#ifndef VRK_TESSALY_IMAGES_NEIGHBORHOODNODES_H
#define VRK_TESSALY_IMAGES_NEIGHBORHOODNODES_H

#include "tessaly/images/NeighborhoodQuaternaryExpression.h"

#include <vector>

namespace Tessaly {

// The window statistics; each is null over a window without values, but for the count
// (of the non-zero values), which is 0 there.
template <class Op>
class NeighborhoodStatistic : public NeighborhoodQuaternaryExpression {
public:
    using NeighborhoodQuaternaryExpression::NeighborhoodQuaternaryExpression;
    double evaluate(const EvaluationContext& context) const override
    {
        std::vector<double> values;
        for (const Cell& cell : collectWindow(context))
            values.push_back(cell.value);
        return Op::apply(values);
    }
    const char* getName() const override { return Op::Name; }
};

namespace Ops {

// Each takes the window's values in line-by-line order.
#define TESSALY_STATISTIC(NAME)                                                                  \
    struct NAME {                                                                                \
        static constexpr const char* Name = #NAME;                                               \
        static double apply(std::vector<double>& values);                                        \
    };
TESSALY_STATISTIC(NeighborhoodCount)
TESSALY_STATISTIC(NeighborhoodSum)
TESSALY_STATISTIC(NeighborhoodProduct)
TESSALY_STATISTIC(NeighborhoodAverage)
TESSALY_STATISTIC(NeighborhoodMin)
TESSALY_STATISTIC(NeighborhoodMax)
TESSALY_STATISTIC(NeighborhoodMedian)
TESSALY_STATISTIC(NeighborhoodMode)
TESSALY_STATISTIC(NeighborhoodVariance)
TESSALY_STATISTIC(NeighborhoodStdDeviation)
#undef TESSALY_STATISTIC

} // namespace Ops

namespace Nodes {

using NeighborhoodCount = NeighborhoodStatistic<Ops::NeighborhoodCount>;
using NeighborhoodSum = NeighborhoodStatistic<Ops::NeighborhoodSum>;
using NeighborhoodProduct = NeighborhoodStatistic<Ops::NeighborhoodProduct>;
using NeighborhoodAverage = NeighborhoodStatistic<Ops::NeighborhoodAverage>;
using NeighborhoodMin = NeighborhoodStatistic<Ops::NeighborhoodMin>;
using NeighborhoodMax = NeighborhoodStatistic<Ops::NeighborhoodMax>;
using NeighborhoodMedian = NeighborhoodStatistic<Ops::NeighborhoodMedian>;
using NeighborhoodMode = NeighborhoodStatistic<Ops::NeighborhoodMode>;
using NeighborhoodVariance = NeighborhoodStatistic<Ops::NeighborhoodVariance>;
using NeighborhoodStdDeviation = NeighborhoodStatistic<Ops::NeighborhoodStdDeviation>;

// The sum of each window cell's value times the weight that the table keeps under the
// cell's place in the window (counted line by line from 0); places without a weight
// are left out.
class NeighborhoodConvolution : public NeighborhoodQuaternaryExpression {
public:
    NeighborhoodConvolution(int image, int table, const Children& window)
        : NeighborhoodQuaternaryExpression(image, window), table_(table)
    {
    }
    int getTable() const { return table_; }
    double evaluate(const EvaluationContext& context) const override;
    void addOwnIndexes(EntityKind kind, std::set<int>& indexes) const override
    {
        addOwnIndex(EntityKind::Table, table_, kind, indexes);
        NeighborhoodQuaternaryExpression::addOwnIndexes(kind, indexes);
    }
    const char* getName() const override { return "NeighborhoodConvolution"; }

private:
    int table_;
};

} // namespace Nodes
} // namespace Tessaly

#endif
