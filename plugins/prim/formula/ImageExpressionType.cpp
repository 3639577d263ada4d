#include "plugins/prim/formula/ImageExpressionType.h"

namespace Prim {

ImageExpressionType::ImageExpressionType()
    : VRK::TypeShim<ImageExpressionType, ImageExpressionData>("ImageExpression",
                                                              "Type of image expression")
{
}

ImageExpressionType::~ImageExpressionType() = default;

} // namespace Prim
