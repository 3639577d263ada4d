#ifndef VRK_TESSALY_IMAGES_FIXEDARITYEXPRESSION_H
#define VRK_TESSALY_IMAGES_FIXEDARITYEXPRESSION_H

#include "tessaly/images/EntityKind.h"
#include "tessaly/images/ImageExpression.h"

#include <array>
#include <cassert>
#include <set>

namespace Tessaly {

// A node with `Arity` children, all present.
template <size_t Arity>
class FixedArityExpression : public ImageExpression {
public:
    using Children = std::array<ImageExpressionPtr, Arity>;

    explicit FixedArityExpression(Children children) : children_(std::move(children))
    {
        for (const auto& child : children_)
            assert(child != 0 && "expression != 0");
    }

    ~FixedArityExpression() override
    {
        Owned pending;
        FixedArityExpression::releaseChildren(pending);
        freeAll(pending);
    }

    size_t getChildCount() const override { return Arity; }
    const ImageExpression& getChild(size_t index) const override
    {
        assert(index < Arity && "index < getChildCount()");
        return *children_[index];
    }

protected:
    double evaluateChild(size_t index, const EvaluationContext& context) const
    {
        return children_[index]->evaluate(context);
    }

    void releaseChildren(Owned& pending) override
    {
        for (auto& child : children_)
            if (child)
                pending.push_back(std::move(child));
    }

private:
    Children children_;
};

// Adds a node's own dictionary index to the dependencies of its kind.
inline void addOwnIndex(EntityKind kind, int index, EntityKind wanted, std::set<int>& indexes)
{
    if (kind == wanted)
        indexes.insert(index);
}

} // namespace Tessaly

#endif
