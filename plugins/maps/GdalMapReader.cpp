#include "plugins/maps/GdalMapReader.h"

#include "base/task/Task.h"
#include "plugins/maps/AsciiGridCellChecker.h"
#include "plugins/maps/GdalUtils.h"

#include <cpl_error.h>
#include <gdal_priv.h>

#include <algorithm>
#include <string>

namespace Maps {

namespace {

// Lines read at once: a cancelled run stops between two such slices.
constexpr int SliceLines = 256;

struct CellTypes {
    Tessaly::CellType cellType;
    GDALDataType bufferType;
};

CellTypes cellTypesOf(GDALDataType fileType, const boost::filesystem::path& file)
{
    if (GDALDataTypeIsComplex(fileType))
        GdalUtils::fail(file, "read, since its cells are complex numbers");
    if (fileType == GDT_Float32)
        return {Tessaly::CellType::Float32, GDT_Float32};
    const int bits = GDALGetDataTypeSizeBits(fileType);
    const bool fitsInt32 = GDALDataTypeIsInteger(fileType)
                           && (bits < 32 || (bits == 32 && GDALDataTypeIsSigned(fileType)));
    if (fitsInt32)
        return {Tessaly::CellType::Int32, GDT_Int32};
    return {Tessaly::CellType::Float64, GDT_Float64};
}

Tessaly::Grid gridOf(GDALDataset& dataset)
{
    Tessaly::Grid grid;
    grid.lines = dataset.GetRasterYSize();
    grid.columns = dataset.GetRasterXSize();
    double transform[6];
    if (dataset.GetGeoTransform(transform) == CE_None)
        std::copy(transform, transform + 6, grid.geoTransform.begin());
    const char* projection = dataset.GetProjectionRef();
    grid.projection = projection ? projection : "";
    return grid;
}

void readCells(GDALRasterBand& band, Tessaly::Raster& raster, GDALDataType bufferType,
               const boost::filesystem::path& file)
{
    const VRK::Task* task = VRK::Task::getCurrentTask();
    const int lines = raster.getLineCount();
    const int columns = raster.getColumnCount();
    const size_t lineBytes = size_t(columns) * Tessaly::Raster::getCellSize(raster.getCellType());
    auto* cells = static_cast<unsigned char*>(raster.rawCells());
    for (int line = 0; line < lines; line += SliceLines) {
        if (task)
            task->checkCancellation();
        const int count = std::min(SliceLines, lines - line);
        if (band.RasterIO(GF_Read, 0, line, columns, count, cells + size_t(line) * lineBytes,
                          columns, count, bufferType, 0, 0)
            != CE_None)
            GdalUtils::fail(file, "read");
    }
}

// The library reads the cells of this format with no complaint about what is not a
// number, so they are checked beforehand.
bool isAsciiGrid(GDALDataset& dataset)
{
    const GDALDriver* driver = dataset.GetDriver();
    return driver && std::string(driver->GetDescription()) == "AAIGrid";
}

} // namespace

std::shared_ptr<const Tessaly::Raster> GdalMapReader::read(const boost::filesystem::path& file)
{
    GdalUtils::registerFormats();
    CPLErrorReset();
    std::unique_ptr<GDALDataset> dataset(
        static_cast<GDALDataset*>(GDALOpen(file.string().c_str(), GA_ReadOnly)));
    if (!dataset)
        GdalUtils::fail(file, "read as a map");
    if (dataset->GetRasterCount() < 1)
        GdalUtils::fail(file, "read as a map, since it holds no band of cells");
    if (isAsciiGrid(*dataset))
        AsciiGridCellChecker::check(file);
    GDALRasterBand& band = *dataset->GetRasterBand(1);
    const CellTypes types = cellTypesOf(band.GetRasterDataType(), file);
    auto raster = std::make_shared<Tessaly::Raster>(gridOf(*dataset), types.cellType);
    int hasNoData = 0;
    const double noData = band.GetNoDataValue(&hasNoData);
    if (hasNoData)
        raster->setNoData(noData);
    readCells(band, *raster, types.bufferType, file);
    return raster;
}

} // namespace Maps
