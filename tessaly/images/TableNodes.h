#ifndef VRK_TESSALY_IMAGES_TABLENODES_H
#define VRK_TESSALY_IMAGES_TABLENODES_H

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/LookupTable.h"
#include "tessaly/images/TableExpression.h"

namespace Tessaly {

// The lookups that differ only by the table operation they call.
template <class Op>
class TableLookup : public TableExpression {
public:
    using TableExpression::TableExpression;
    double evaluate(const EvaluationContext& context) const override
    {
        return (context.getTable(getTable()).*Op::Lookup)(evaluateChild(0, context));
    }
    const char* getName() const override { return Op::Name; }
};

namespace Ops {

#define TESSALY_LOOKUP(NAME, METHOD)                                                             \
    struct NAME {                                                                                \
        static constexpr const char* Name = #NAME;                                               \
        static constexpr double (LookupTable::*Lookup)(double) const = &LookupTable::METHOD;     \
    };
TESSALY_LOOKUP(TableValue, getValue)
TESSALY_LOOKUP(TableEqualLowerBoundValue, getEqualLowerBoundValue)
TESSALY_LOOKUP(TableLowerBoundValue, getLowerBoundValue)
TESSALY_LOOKUP(TableEqualUpperBoundValue, getEqualUpperBoundValue)
TESSALY_LOOKUP(TableUpperBoundValue, getUpperBoundValue)
TESSALY_LOOKUP(TableClosestValue, getClosestValue)
TESSALY_LOOKUP(TableInterpoledValue, getInterpoledValue)
#undef TESSALY_LOOKUP

struct TableHasKey {
    static constexpr const char* Name = "TableHasKey";
    static constexpr double (LookupTable::*Lookup)(double) const = &LookupTable::getHasKey;
};

} // namespace Ops

namespace Nodes {

using TableValue = TableLookup<Ops::TableValue>;
using TableEqualLowerBoundValue = TableLookup<Ops::TableEqualLowerBoundValue>;
using TableLowerBoundValue = TableLookup<Ops::TableLowerBoundValue>;
using TableEqualUpperBoundValue = TableLookup<Ops::TableEqualUpperBoundValue>;
using TableUpperBoundValue = TableLookup<Ops::TableUpperBoundValue>;
using TableClosestValue = TableLookup<Ops::TableClosestValue>;
using TableInterpoledValue = TableLookup<Ops::TableInterpoledValue>;
using TableHasKey = TableLookup<Ops::TableHasKey>;

} // namespace Nodes
} // namespace Tessaly

#endif
