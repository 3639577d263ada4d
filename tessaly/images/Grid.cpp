#include "tessaly/images/Grid.h"

#include <sstream>

namespace Tessaly {

bool Grid::isSameGridAs(const Grid& other) const
{
    return lines == other.lines && columns == other.columns && geoTransform == other.geoTransform;
}

std::string Grid::describe() const
{
    std::ostringstream text;
    text.precision(15);
    text << columns << " x " << lines << " cells, origin (" << geoTransform[0] << ", "
         << geoTransform[3] << "), cell size (" << geoTransform[1] << ", " << geoTransform[5]
         << ")";
    return text.str();
}

} // namespace Tessaly
