#include "plugins/maps/LoadMapFunctor.h"

#include "plugins/maps/GdalMapReader.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/MapFileEditor.h"
#include "plugins/maps/MapFileType.h"
#include "plugins/maps/MapType.h"
#include "plugins/prim/files/FilenamedFunctorUtils.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"

namespace Maps {

LoadMap::LoadMap()
    : Prim::FilenamedFunctor(
        "LoadMap", "Read a raster map from a file.", "filename", "workdir",
        Prim::FilenamedFunctorUtils::verifierOf(&Prim::FilenamedFunctorVerifierAdapter::canReadFile,
                                                MapFileEditor::getExtensions()),
        "suffixDigits", "step", nullptr)
{
    Prim::FilenamedFunctorUtils::addFilePorts(*this, MapFileType::getInstance(),
                                              "Map file to read, of any raster format.");
    addOutputPort("map", "Map read from the file.", MapType::getInstance());
}

LoadMap::~LoadMap() = default;

void LoadMap::runImpl()
{
    const boost::filesystem::path file = Prim::FilenamedFunctorUtils::getFile(*this);
    Prim::FilenamedFunctorVerifierAdapter::requireReadable(file);
    setOutputPortValue<MapData>("map", GdalMapReader::open(file));
}

} // namespace Maps
