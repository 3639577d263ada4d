#ifndef VRK_PLUGINS_MAPS_GDALMAPWRITER_H
#define VRK_PLUGINS_MAPS_GDALMAPWRITER_H

#include "tessaly/images/Raster.h"

#include <boost/filesystem/path.hpp>

#include <set>
#include <string>

namespace Maps {

// Writes a raster as GeoTIFF (".tif", ".tiff": tiled, compressed) or as an ASCII grid
// (".asc", with its projection in a ".prj" file beside it), chosen by the extension.
// The file is encoded in memory and then written through a temporary file and a
// rename, so that a failed or cancelled run never leaves a half-written map.
class GdalMapWriter {
public:
    static void write(const Tessaly::Raster& raster, const boost::filesystem::path& file);
    static const std::set<std::string>& getExtensions();
};

} // namespace Maps

#endif
