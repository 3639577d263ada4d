#ifndef VRK_TESSALY_IMAGES_GRID_H
#define VRK_TESSALY_IMAGES_GRID_H

#include <array>
#include <string>

namespace Tessaly {

// Where a raster lies on the ground: its size in cells, the affine transform from
// (column, line) to map coordinates (x = t[0] + column * t[1] + line * t[2],
// y = t[3] + column * t[4] + line * t[5]) and the projection as WKT, empty when unknown.
struct Grid {
    int lines = 0;
    int columns = 0;
    std::array<double, 6> geoTransform{{0, 1, 0, 0, 0, -1}};
    std::string projection;

    // Two rasters can meet cell by cell in one formula only on the same grid: the same
    // size and transform. The projection is left out, since the same grid is often
    // written with projections that differ only in spelling.
    bool isSameGridAs(const Grid& other) const;
    // "1024 x 768 cells, origin (x, y), cell size (w, h)", for messages.
    std::string describe() const;
};

} // namespace Tessaly

#endif
