#include "plugins/maps/MapFileEditor.h"

#include "plugins/maps/MapFileData.h"
#include "plugins/maps/MapFileType.h"

namespace Maps {

MapFileEditor::MapFileEditor()
    : Prim::FilenameEditor("MapFileEditor", "Editor for map files", MapFileType::getInstance())
{
}

MapFileEditor::~MapFileEditor() = default;

void MapFileEditor::packData()
{
    setDataPtr(std::make_shared<const MapFileData>(getCompoundFilename()));
}

std::string MapFileEditor::getAlias() const { return "map file"; }

bool MapFileEditor::isExtensionAccepted(const std::string& extension) const
{
    return getExtensions().count(extension) != 0;
}

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
