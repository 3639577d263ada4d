#ifndef VRK_PLUGINS_MAPS_GDALMAPWRITER_H
#define VRK_PLUGINS_MAPS_GDALMAPWRITER_H

#include "tessaly/raster/RasterSource.h"

#include <boost/filesystem/path.hpp>

#include <set>
#include <string>

namespace Maps {

// Writes a map as GeoTIFF (".tif", ".tiff": tiled, compressed) or as an ASCII grid
// (".asc", with its projection in a ".prj" file beside it), chosen by the extension.
// The file is written through a temporary file and a rename, so that a failed or
// cancelled run never leaves a half-written map; a GeoTIFF is compressed on
// `processors` threads.
class GdalMapWriter {
public:
    static void write(const Tessaly::RasterSource& map, const boost::filesystem::path& file,
                      int processors);
    static const std::set<std::string>& getExtensions();
};

} // namespace Maps

#endif
