#ifndef VRK_TESSALY_RASTER_RASTERSOURCE_H
#define VRK_TESSALY_RASTER_RASTERSOURCE_H

#include "tessaly/images/Raster.h"

namespace Tessaly {

// A map's cells wherever they are kept: whole in memory, or in a file read strip by
// strip. A source never changes once made, and may be read from several threads at
// once.
class RasterSource {
public:
    RasterSource() = default;
    RasterSource(const RasterSource&) = delete;
    RasterSource& operator=(const RasterSource&) = delete;
    virtual ~RasterSource();

    // The grid, cell type and NoData of the map, as a raster that holds no line.
    virtual const Raster& getHeader() const = 0;
    // The whole raster when it is held in memory, else null.
    virtual const Raster* getWhole() const = 0;
    // The lines [firstLine, endLine), with the map's NoData.
    virtual Raster readLines(int firstLine, int endLine) const = 0;
};

} // namespace Tessaly

#endif
