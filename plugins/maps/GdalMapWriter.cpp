#include "plugins/maps/GdalMapWriter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/script/AtomicFileWriter.h"
#include "base/task/Task.h"
#include "plugins/maps/GdalUtils.h"
#include "plugins/maps/SourceDataset.h"

#include <boost/filesystem/operations.hpp>
#include <cpl_string.h>
#include <gdal_priv.h>

#include <algorithm>
#include <memory>
#include <string>

namespace Maps {

namespace {

struct Format {
    const char* driver;
    std::vector<std::string> options;
};

Format formatOf(const boost::filesystem::path& file, Tessaly::CellType cellType)
{
    const std::string extension = file.extension().string();
    if (extension == ".tif" || extension == ".tiff")
        // Differences along the line, lossless for every cell type, compress faster
        // and smaller than the cells themselves.
        return {"GTiff", {"TILED=YES", "COMPRESS=DEFLATE", "PREDICTOR=2", "BIGTIFF=IF_SAFER"}};
    if (extension == ".asc")
        return {"AAIGrid",
                {cellType == Tessaly::CellType::Float64 ? "SIGNIFICANT_DIGITS=17"
                                                        : "SIGNIFICANT_DIGITS=9"}};
    VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
        "The map file \"" + file.string()
        + "\" can not be written: only GeoTIFF (\".tif\", \".tiff\") and ASCII grid "
          "(\".asc\") files are written.");
}

// A dataset in memory that lends the raster's cells, with its grid and NoData.
std::unique_ptr<GDALDataset> inMemory(const Tessaly::Raster& raster,
                                      const boost::filesystem::path& file)
{
    GDALDriver* memory = GetGDALDriverManager()->GetDriverByName("MEM");
    const Tessaly::Grid& grid = raster.getGrid();
    std::unique_ptr<GDALDataset> dataset(memory->Create(
        "", grid.columns, grid.lines, 0, GdalUtils::gdalTypeOf(raster.getCellType()), nullptr));
    if (!dataset)
        GdalUtils::fail(file, "written");
    // The copy made from this dataset only reads the cells it lends.
    char address[64];
    CPLPrintPointer(address, const_cast<void*>(raster.rawCells()), sizeof(address));
    const std::string data = std::string("DATAPOINTER=") + address;
    const char* options[] = {data.c_str(), nullptr};
    dataset->AddBand(GdalUtils::gdalTypeOf(raster.getCellType()), const_cast<char**>(options));
    GdalUtils::describe(*dataset, raster);
    return dataset;
}

// The library names an ASCII grid's projection file after the grid; the one written
// beside the temporary file goes beside the target, and an old one must not outlive a
// map written without projection.
void placeProjection(const boost::filesystem::path& temporary, const boost::filesystem::path& file)
{
    boost::filesystem::path written = temporary;
    written.replace_extension(".prj");
    boost::filesystem::path projection = file;
    projection.replace_extension(".prj");
    boost::system::error_code error;
    if (boost::filesystem::exists(written, error))
        boost::filesystem::rename(written, projection);
    else
        boost::filesystem::remove(projection);
}

// A map held whole is lent to the library as it is; any other is read by strips as
// the library copies it.
std::unique_ptr<GDALDataset> datasetOf(const Tessaly::RasterSource& map,
                                       const boost::filesystem::path& file)
{
    if (const Tessaly::Raster* whole = map.getWhole())
        return inMemory(*whole, file);
    return std::make_unique<SourceDataset>(map);
}

} // namespace

void GdalMapWriter::write(const Tessaly::RasterSource& map, const boost::filesystem::path& file,
                          int processors)
{
    GdalUtils::registerFormats();
    Format format = formatOf(file, map.getHeader().getCellType());
    if (format.driver == std::string("GTiff"))
        format.options.push_back("NUM_THREADS=" + std::to_string(std::max(1, processors)));
    CPLErrorReset();
    std::unique_ptr<GDALDataset> source = datasetOf(map, file);
    CPLStringList options;
    for (const std::string& option : format.options)
        options.AddString(option.c_str());
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(format.driver);
    // Encoded straight into the temporary file, compressed on every processor given,
    // so that no second copy of the map is held in memory.
    VRK::AtomicFileWriter::writeFile(file, [&](const boost::filesystem::path& temporary) {
        std::unique_ptr<GDALDataset> copy(driver->CreateCopy(
            temporary.string().c_str(), source.get(), FALSE, options.List(), nullptr, nullptr));
        if (auto* lines = dynamic_cast<SourceDataset*>(source.get()))
            lines->rethrowFailure();
        if (!copy)
            GdalUtils::fail(file, "written");
        // Errors of the last blocks show only when the file is closed.
        copy.reset();
        if (CPLGetLastErrorType() == CE_Failure)
            GdalUtils::fail(file, "written");
        if (const VRK::Task* task = VRK::Task::getCurrentTask())
            task->checkCancellation();
        if (format.driver == std::string("AAIGrid"))
            placeProjection(temporary, file);
    });
}

const std::set<std::string>& GdalMapWriter::getExtensions()
{
    static const std::set<std::string> extensions = {".tif", ".tiff", ".asc"};
    return extensions;
}

} // namespace Maps
