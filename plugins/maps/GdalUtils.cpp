#include "plugins/maps/GdalUtils.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/UnableToAccessFileException.h"
#include "tessaly/raster/MemoryBudget.h"

#include <cpl_error.h>
#include <gdal_priv.h>

#include <algorithm>
#include <mutex>

namespace Maps {

void GdalUtils::registerFormats()
{
    static std::once_flag registered;
    // The library's messages reach the user through the exceptions that quote them,
    // not on the standard error.
    std::call_once(registered, [] {
        GDALAllRegister();
        CPLSetErrorHandler(CPLQuietErrorHandler);
        // The library's block cache sits beside the memory budget: a quarter of it, within
        // room for one line of tiles of a wide map being compressed and a cap that keeps
        // it small beside the maps.
        const std::size_t budget = Tessaly::MemoryBudget::getInstance().getLimit();
        const std::size_t mebibyte = std::size_t(1) << 20;
        GDALSetCacheMax64(GIntBig(std::min(128 * mebibyte, std::max(48 * mebibyte, budget / 4))));
    });
}

std::string GdalUtils::lastError()
{
    const char* message = CPLGetLastErrorMsg();
    std::string text = message ? message : "";
    while (!text.empty() && (text.back() == '.' || text.back() == '\n'))
        text.pop_back();
    return text.empty() ? text : ": " + text;
}

void GdalUtils::fail(const boost::filesystem::path& file, const std::string& problem)
{
    // The library reports an allocation that failed as its own error, which must not
    // read as a fault of the file.
    if (CPLGetLastErrorNo() == CPLE_OutOfMemory)
        VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
            "Memory ran out before the map file \"" + file.string() + "\" could be " + problem
            + lastError() + ".");
    VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
        "The map file \"" + file.string() + "\" can not be " + problem + lastError() + ".");
}

void GdalUtils::describe(GDALDataset& dataset, const Tessaly::Raster& map)
{
    const Tessaly::Grid& grid = map.getGrid();
    double transform[6];
    std::copy(grid.geoTransform.begin(), grid.geoTransform.end(), transform);
    dataset.SetGeoTransform(transform);
    if (!grid.projection.empty())
        dataset.SetProjection(grid.projection.c_str());
    if (map.hasNoData())
        dataset.GetRasterBand(1)->SetNoDataValue(map.getNoData());
}

GDALDataType GdalUtils::gdalTypeOf(Tessaly::CellType cellType)
{
    switch (cellType) {
    case Tessaly::CellType::Int32:
        return GDT_Int32;
    case Tessaly::CellType::Float32:
        return GDT_Float32;
    case Tessaly::CellType::Float64:
        break;
    }
    return GDT_Float64;
}

} // namespace Maps
