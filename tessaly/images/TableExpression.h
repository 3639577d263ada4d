#ifndef VRK_TESSALY_IMAGES_TABLEEXPRESSION_H
#define VRK_TESSALY_IMAGES_TABLEEXPRESSION_H

#include "tessaly/images/UnaryExpression.h"

namespace Tessaly {

// A lookup in one table of the dictionary under a computed key.
class TableExpression : public UnaryExpression {
public:
    TableExpression(int table, const ImageExpressionPtr& key) : UnaryExpression(key), table_(table)
    {
    }
    int getTable() const { return table_; }
    const ImageExpression& getKey() const { return getOperand(); }

    void addOwnIndexes(EntityKind kind, std::set<int>& indexes) const override
    {
        addOwnIndex(EntityKind::Table, table_, kind, indexes);
    }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }

private:
    int table_;
};

} // namespace Tessaly

#endif
