#ifndef VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONTYPE_H
#define VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/formula/ImageExpressionData.h"

namespace Prim {

class ImageExpressionType : public VRK::TypeShim<ImageExpressionType, ImageExpressionData> {
public:
    ImageExpressionType();
    ~ImageExpressionType() override;
};

} // namespace Prim

#endif
