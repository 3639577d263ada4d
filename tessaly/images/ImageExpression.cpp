#include "tessaly/images/ImageExpression.h"

#include <cassert>

namespace Tessaly {

ImageExpression::~ImageExpression() = default;

void ImageExpression::getImageDependencies(std::set<int>& indexes) const
{
    for (size_t i = 0; i < getChildCount(); ++i)
        getChild(i).getImageDependencies(indexes);
}

void ImageExpression::getTableDependencies(std::set<int>& indexes) const
{
    for (size_t i = 0; i < getChildCount(); ++i)
        getChild(i).getTableDependencies(indexes);
}

void ImageExpression::getValueDependencies(std::set<int>& indexes) const
{
    for (size_t i = 0; i < getChildCount(); ++i)
        getChild(i).getValueDependencies(indexes);
}

bool ImageExpression::isLineAndColumnNeeded() const
{
    for (size_t i = 0; i < getChildCount(); ++i)
        if (getChild(i).isLineAndColumnNeeded())
            return true;
    return false;
}

const ImageExpression& ImageExpression::getChild(size_t) const
{
    assert(false && "index < getChildCount()");
    return *this;
}

} // namespace Tessaly
