#ifndef VRK_PLUGINS_MAPS_GDALUTILS_H
#define VRK_PLUGINS_MAPS_GDALUTILS_H

#include "tessaly/images/Raster.h"

#include <boost/filesystem/path.hpp>
#include <gdal.h>

class GDALDataset;

#include <string>

namespace Maps {

// What the map reader and writer share of the raster library.
class GdalUtils {
public:
    // Registers the library's formats, once per process.
    static void registerFormats();
    // ": " and the library's last error on this thread without its final stop, or
    // nothing when it has none.
    static std::string lastError();
    // Fails with "The map file "FILE" can not be PROBLEM" and the last error.
    [[noreturn]] static void fail(const boost::filesystem::path& file, const std::string& problem);
    // Gives a dataset of one band the grid (transform, projection) and NoData of `map`.
    static void describe(GDALDataset& dataset, const Tessaly::Raster& map);
    // The library's type of cells of `cellType`.
    static GDALDataType gdalTypeOf(Tessaly::CellType cellType);
};

} // namespace Maps

#endif
