#include "tessaly/images/ImageExpressionVisitor.h"

namespace Tessaly {

ImageExpressionVisitor::~ImageExpressionVisitor() = default;

} // namespace Tessaly
