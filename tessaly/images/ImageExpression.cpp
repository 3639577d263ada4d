#include "tessaly/images/ImageExpression.h"

#include "tessaly/images/ImageExpressionWalk.h"

#include <cassert>

namespace Tessaly {

ImageExpression::~ImageExpression() = default;

void ImageExpression::getImageDependencies(std::set<int>& indexes) const
{
    getDependencies(EntityKind::Image, indexes);
}

void ImageExpression::getTableDependencies(std::set<int>& indexes) const
{
    getDependencies(EntityKind::Table, indexes);
}

void ImageExpression::getValueDependencies(std::set<int>& indexes) const
{
    getDependencies(EntityKind::Value, indexes);
}

void ImageExpression::getDependencies(EntityKind kind, std::set<int>& indexes) const
{
    ImageExpressionWalk::preOrder(*this, [&](const ImageExpression& node) {
        node.addOwnIndexes(kind, indexes);
        return true;
    });
}

bool ImageExpression::isLineAndColumnNeeded() const
{
    bool needed = false;
    ImageExpressionWalk::preOrder(*this, [&needed](const ImageExpression& node) {
        needed = needed || node.needsOwnCell();
        return !needed;
    });
    return needed;
}

const ImageExpression& ImageExpression::getChild(size_t) const
{
    assert(false && "index < getChildCount()");
    return *this;
}

void ImageExpression::addOwnIndexes(EntityKind, std::set<int>&) const {}

void ImageExpression::releaseChildren(Owned&) {}

// A node shared with another owner is only let go; its children stay its own.
void ImageExpression::freeAll(Owned& pending)
{
    while (!pending.empty()) {
        std::shared_ptr<ImageExpression> node = std::move(pending.back());
        pending.pop_back();
        if (node.use_count() == 1)
            node->releaseChildren(pending);
    }
}

} // namespace Tessaly
