#include "tessaly/images/Image.h"

#include <limits>

namespace Tessaly {

Image::~Image() = default;

double Image::getValueOrNull(int line, int column) const
{
    if (line < 0 || column < 0 || line >= getLineCount() || column >= getColumnCount())
        return std::numeric_limits<double>::quiet_NaN();
    return getValue(line, column);
}

double Image::getNoDataValue() const { return std::numeric_limits<double>::quiet_NaN(); }

} // namespace Tessaly
