#ifndef VRK_TESSALY_IMAGES_INDEXEDEXPRESSION_H
#define VRK_TESSALY_IMAGES_INDEXEDEXPRESSION_H

#include "tessaly/images/EntityKind.h"
#include "tessaly/images/FixedArityExpression.h"
#include "tessaly/images/NullaryExpression.h"

namespace Tessaly {

// A leaf that reads one image, table or value of the dictionary.
class IndexedExpression : public NullaryExpression {
public:
    IndexedExpression(EntityKind kind, int index) : kind_(kind), index_(index) {}

    EntityKind getKind() const { return kind_; }
    int getIndex() const { return index_; }

    void addOwnIndexes(EntityKind kind, std::set<int>& indexes) const override
    {
        addOwnIndex(kind_, index_, kind, indexes);
    }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }

private:
    EntityKind kind_;
    int index_;
};

} // namespace Tessaly

#endif
