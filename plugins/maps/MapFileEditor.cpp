#include "plugins/maps/MapFileEditor.h"

#include "plugins/maps/MapFileData.h"
#include "plugins/maps/MapFileType.h"

template class Prim::FileKindEditor<Maps::MapFileKind>;

namespace Maps {

MapFileEditor::~MapFileEditor() = default;

// The formats of raster maps that are read: every one the raster library reads is
// recognised by its extension; only GeoTIFF and the ASCII grid are written.
const std::set<std::string>& MapFileEditor::getExtensions()
{
    static const std::set<std::string> extensions = {
        ".tif", ".tiff", ".asc",  ".img", ".vrt",  ".nc",  ".grd", ".bil", ".bsq",
        ".bip", ".rst",  ".sdat", ".map", ".dem",  ".ers", ".png", ".jpg", ".jpeg",
        ".gif", ".bmp",  ".xyz",  ".hgt", ".gpkg", ".kea", ".rsw", ".mpr", ".pix"};
    return extensions;
}

} // namespace Maps
