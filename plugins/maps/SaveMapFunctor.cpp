#include "plugins/maps/SaveMapFunctor.h"

#include "base/task/ProcessorManager.h"
#include "plugins/maps/GdalMapWriter.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/MapFileType.h"
#include "plugins/maps/MapType.h"
#include "plugins/prim/files/FilenamedFunctorUtils.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"

namespace Maps {

SaveMap::SaveMap()
    : Prim::FilenamedFunctor(
        "SaveMap", "Write a raster map to a GeoTIFF or an ASCII grid file.", "filename", "workdir",
        Prim::FilenamedFunctorUtils::verifierOf(
            &Prim::FilenamedFunctorVerifierAdapter::canWriteFile, GdalMapWriter::getExtensions()),
        "suffixDigits", "step", nullptr)
{
    addInputPort("map", "Map to write.", MapType::getInstance(), false);
    Prim::FilenamedFunctorUtils::addFilePorts(
        *this, MapFileType::getInstance(),
        "Map file to write: GeoTIFF (\".tif\", \".tiff\") or ASCII grid (\".asc\").");
}

SaveMap::~SaveMap() = default;

void SaveMap::runImpl()
{
    const std::shared_ptr<const Tessaly::RasterSource>& map = getInputPortValue<MapData>("map");
    const boost::filesystem::path file = Prim::FilenamedFunctorUtils::getFile(*this);
    Prim::FilenamedFunctorVerifierAdapter::requireWritable(file);
    GdalMapWriter::write(*map, file,
                         int(VRK::ProcessorManager::Instance().getEffectiveProcessorCount()));
}

} // namespace Maps
