#include "plugins/maps/GdalRasterSource.h"

#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "plugins/maps/AsciiGridCellChecker.h"
#include "plugins/maps/GdalUtils.h"

#include <boost/filesystem/operations.hpp>
#include <cpl_error.h>
#include <gdal_priv.h>

#include <algorithm>
#include <string>
#include <utility>

namespace Maps {

namespace {

// Lines read at once: a cancelled run stops between two such slices.
constexpr int SliceLines = 256;

// Handles kept at most: each holds a file descriptor, and a model may hold many maps.
constexpr int MostHandles = 4;

Tessaly::CellType cellTypeOf(GDALDataType fileType, const boost::filesystem::path& file)
{
    if (GDALDataTypeIsComplex(fileType))
        GdalUtils::fail(file, "read, since its cells are complex numbers");
    if (fileType == GDT_Float32)
        return Tessaly::CellType::Float32;
    const int bits = GDALGetDataTypeSizeBits(fileType);
    const bool fitsInt32 = GDALDataTypeIsInteger(fileType)
                           && (bits < 32 || (bits == 32 && GDALDataTypeIsSigned(fileType)));
    return fitsInt32 ? Tessaly::CellType::Int32 : Tessaly::CellType::Float64;
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

// The library reads the cells of this format with no complaint about what is not a
// number, so they are checked beforehand.
bool isAsciiGrid(GDALDataset& dataset)
{
    const GDALDriver* driver = dataset.GetDriver();
    return driver && std::string(driver->GetDescription()) == "AAIGrid";
}

// The library's own threads that decode a GeoTIFF are not used: memory that runs out
// on one of them ends the process, where on the readers' threads it is an error.
std::unique_ptr<GDALDataset> openDataset(const boost::filesystem::path& file)
{
    GdalUtils::registerFormats();
    CPLErrorReset();
    std::unique_ptr<GDALDataset> dataset(
        static_cast<GDALDataset*>(GDALOpen(file.string().c_str(), GA_ReadOnly)));
    if (!dataset)
        GdalUtils::fail(file, "read as a map");
    if (dataset->GetRasterCount() < 1)
        GdalUtils::fail(file, "read as a map, since it holds no band of cells");
    return dataset;
}

Tessaly::Raster headerOf(GDALDataset& dataset, const boost::filesystem::path& file)
{
    GDALRasterBand& band = *dataset.GetRasterBand(1);
    Tessaly::Raster header(gridOf(dataset), cellTypeOf(band.GetRasterDataType(), file), 0, 0);
    int hasNoData = 0;
    const double noData = band.GetNoDataValue(&hasNoData);
    if (hasNoData)
        header.setNoData(noData);
    return header;
}

// Every handle is opened at once: the name may be removed, or given to another file,
// later. One for each processor in force, so that as many threads read at once.
std::vector<std::unique_ptr<GDALDataset>> openHandles(const boost::filesystem::path& file)
{
    const int processors =
        std::max(1, int(VRK::ProcessorManager::Instance().getEffectiveProcessorCount()));
    std::vector<std::unique_ptr<GDALDataset>> handles;
    handles.push_back(openDataset(file));
    if (isAsciiGrid(*handles.front()))
        AsciiGridCellChecker::check(file);
    while (int(handles.size()) < std::min(processors, MostHandles))
        handles.push_back(openDataset(file));
    return handles;
}

} // namespace

GdalRasterSource::GdalRasterSource(const boost::filesystem::path& file, bool temporary)
    : file_(file), idle_(openHandles(file)), header_(headerOf(*idle_.front(), file))
{
    boost::system::error_code ignored;
    if (temporary)
        boost::filesystem::remove(file_, ignored);
}

GdalRasterSource::~GdalRasterSource() = default;

Tessaly::Raster GdalRasterSource::readLines(int firstLine, int endLine) const
{
    Tessaly::Raster strip = Tessaly::Raster::stripOf(header_, firstLine, endLine);
    const VRK::Task* task = VRK::Task::getCurrentTask();
    const int columns = header_.getColumnCount();
    const size_t lineBytes = size_t(columns) * Tessaly::Raster::getCellSize(header_.getCellType());
    auto* cells = static_cast<unsigned char*>(strip.rawCells());
    const Handle handle(*this);
    GDALRasterBand& band = *handle.dataset->GetRasterBand(1);
    for (int line = firstLine; line < endLine; line += SliceLines) {
        if (task)
            task->checkCancellation();
        const int count = std::min(SliceLines, endLine - line);
        CPLErrorReset();
        if (band.RasterIO(GF_Read, 0, line, columns, count,
                          cells + size_t(line - firstLine) * lineBytes, columns, count,
                          GdalUtils::gdalTypeOf(header_.getCellType()), 0, 0, nullptr)
            != CE_None)
            GdalUtils::fail(file_, "read");
    }
    return strip;
}

GdalRasterSource::Handle::Handle(const GdalRasterSource& source) : source_(source)
{
    std::unique_lock<std::mutex> lock(source.mutex_);
    source.returned_.wait(lock, [&source] { return !source.idle_.empty(); });
    dataset = std::move(source.idle_.back());
    source.idle_.pop_back();
}

GdalRasterSource::Handle::~Handle()
{
    {
        std::lock_guard<std::mutex> lock(source_.mutex_);
        source_.idle_.push_back(std::move(dataset));
    }
    source_.returned_.notify_one();
}

} // namespace Maps
