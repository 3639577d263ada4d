#ifndef VRK_PLUGINS_MAPS_GDALMAPREADER_H
#define VRK_PLUGINS_MAPS_GDALMAPREADER_H

#include "tessaly/raster/RasterSource.h"

#include <boost/filesystem/path.hpp>

#include <memory>

namespace Maps {

// Reads the first band of a raster file of any format the raster library knows, with
// its NoData value, geotransform and projection. Narrow integer cells become Int32,
// unsigned 32-bit and 64-bit integers Float64.
class GdalMapReader {
public:
    // The map opened, its cells read when they are asked for.
    static std::shared_ptr<const Tessaly::RasterSource> open(const boost::filesystem::path& file);
};

} // namespace Maps

#endif
