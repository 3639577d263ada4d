#ifndef VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONDATA_H
#define VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONDATA_H

#include "base/data/NullType.h"
#include "base/data/PrimData.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <memory>

namespace Prim {

// Parsed formulas; they have no viewer.
using ImageExpressionData = VRK::PrimData<std::shared_ptr<Tessaly::TopLevelImageExpression>,
                                          VRK::NullType, ImageExpressionEditor>;

} // namespace Prim

#endif
