#include "tessaly/images/NeighborhoodNodes.h"

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/LookupTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>

namespace Tessaly {
namespace Ops {

namespace {

constexpr double Null = std::numeric_limits<double>::quiet_NaN();

double mean(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / double(values.size());
}

} // namespace

// The cells that hold a value other than zero, so that a window of 0/1 cells counts
// its ones.
double NeighborhoodCount::apply(std::vector<double>& values)
{
    return double(std::count_if(values.begin(), values.end(), [](double v) { return v != 0; }));
}

double NeighborhoodSum::apply(std::vector<double>& values)
{
    return values.empty() ? Null : std::accumulate(values.begin(), values.end(), 0.0);
}

double NeighborhoodProduct::apply(std::vector<double>& values)
{
    return values.empty() ? Null
                          : std::accumulate(values.begin(), values.end(), 1.0,
                                            [](double a, double b) { return a * b; });
}

double NeighborhoodAverage::apply(std::vector<double>& values)
{
    return values.empty() ? Null : mean(values);
}

double NeighborhoodMin::apply(std::vector<double>& values)
{
    return values.empty() ? Null : *std::min_element(values.begin(), values.end());
}

double NeighborhoodMax::apply(std::vector<double>& values)
{
    return values.empty() ? Null : *std::max_element(values.begin(), values.end());
}

// The middle value; the mean of the two middle ones in a window of even size.
double NeighborhoodMedian::apply(std::vector<double>& values)
{
    if (values.empty())
        return Null;
    std::sort(values.begin(), values.end());
    const size_t half = values.size() / 2;
    return values.size() % 2 ? values[half] : (values[half - 1] + values[half]) / 2;
}

// The most frequent value; the smallest of those as frequent.
double NeighborhoodMode::apply(std::vector<double>& values)
{
    std::map<double, size_t> counts;
    for (double value : values)
        ++counts[value];
    double mode = Null;
    size_t best = 0;
    for (const auto& entry : counts)
        if (entry.second > best) {
            mode = entry.first;
            best = entry.second;
        }
    return mode;
}

// Of the window as a whole population.
double NeighborhoodVariance::apply(std::vector<double>& values)
{
    if (values.empty())
        return Null;
    const double average = mean(values);
    double sum = 0;
    for (double value : values)
        sum += (value - average) * (value - average);
    return sum / double(values.size());
}

double NeighborhoodStdDeviation::apply(std::vector<double>& values)
{
    return std::sqrt(NeighborhoodVariance::apply(values));
}

} // namespace Ops

namespace Nodes {

double NeighborhoodConvolution::evaluate(const EvaluationContext& context) const
{
    const LookupTable& weights = context.getTable(table_);
    double sum = 0;
    bool any = false;
    for (const Cell& cell : collectWindow(context)) {
        const double weight = weights.getValue(cell.place);
        if (std::isnan(weight))
            continue;
        sum += weight * cell.value;
        any = true;
    }
    return any ? sum : Ops::Null;
}

} // namespace Nodes
} // namespace Tessaly
