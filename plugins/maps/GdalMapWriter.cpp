#include "plugins/maps/GdalMapWriter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/script/AtomicFileWriter.h"
#include "base/task/Task.h"
#include "plugins/maps/GdalUtils.h"

#include <boost/filesystem/operations.hpp>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>

#include <atomic>
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
        return {"GTiff", {"TILED=YES", "COMPRESS=DEFLATE", "BIGTIFF=IF_SAFER"}};
    if (extension == ".asc")
        return {"AAIGrid",
                {cellType == Tessaly::CellType::Float64 ? "SIGNIFICANT_DIGITS=17"
                                                        : "SIGNIFICANT_DIGITS=9"}};
    VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
        "The map file \"" + file.string()
        + "\" can not be written: only GeoTIFF (\".tif\", \".tiff\") and ASCII grid "
          "(\".asc\") files are written.");
}

GDALDataType gdalTypeOf(Tessaly::CellType cellType)
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

// A dataset in memory that lends the raster's cells, with its grid and NoData.
std::unique_ptr<GDALDataset> inMemory(const Tessaly::Raster& raster,
                                      const boost::filesystem::path& file)
{
    GDALDriver* memory = GetGDALDriverManager()->GetDriverByName("MEM");
    const Tessaly::Grid& grid = raster.getGrid();
    std::unique_ptr<GDALDataset> dataset(
        memory->Create("", grid.columns, grid.lines, 0, gdalTypeOf(raster.getCellType()), nullptr));
    if (!dataset)
        GdalUtils::fail(file, "written");
    // The copy made from this dataset only reads the cells it lends.
    char address[64];
    CPLPrintPointer(address, const_cast<void*>(raster.rawCells()), sizeof(address));
    const std::string data = std::string("DATAPOINTER=") + address;
    const char* options[] = {data.c_str(), nullptr};
    dataset->AddBand(gdalTypeOf(raster.getCellType()), const_cast<char**>(options));
    double transform[6];
    std::copy(grid.geoTransform.begin(), grid.geoTransform.end(), transform);
    dataset->SetGeoTransform(transform);
    if (!grid.projection.empty())
        dataset->SetProjection(grid.projection.c_str());
    if (raster.hasNoData())
        dataset->GetRasterBand(1)->SetNoDataValue(raster.getNoData());
    return dataset;
}

// A folder of its own in the library's memory file system, removed with the object.
class MemoryFolder {
public:
    MemoryFolder()
    {
        static std::atomic<unsigned long> counter{0};
        folder_ = "/vsimem/vrk_map_" + std::to_string(++counter);
    }
    ~MemoryFolder() { VSIRmdirRecursive(folder_.c_str()); }
    MemoryFolder(const MemoryFolder&) = delete;
    MemoryFolder& operator=(const MemoryFolder&) = delete;

    std::string file(const std::string& name) const { return folder_ + "/" + name; }

private:
    std::string folder_;
};

bool copyOut(const std::string& memoryFile, const boost::filesystem::path& target)
{
    vsi_l_offset length = 0;
    const GByte* bytes = VSIGetMemFileBuffer(memoryFile.c_str(), &length, FALSE);
    if (bytes == nullptr)
        return false;
    VRK::AtomicFileWriter::write(target, [&](std::ostream& out) {
        out.write(reinterpret_cast<const char*>(bytes), std::streamsize(length));
    });
    return true;
}

} // namespace

void GdalMapWriter::write(const Tessaly::Raster& raster, const boost::filesystem::path& file)
{
    GdalUtils::registerFormats();
    const Format format = formatOf(file, raster.getCellType());
    CPLErrorReset();
    std::unique_ptr<GDALDataset> source = inMemory(raster, file);
    MemoryFolder folder;
    const std::string encoded = folder.file("map" + file.extension().string());
    CPLStringList options;
    for (const std::string& option : format.options)
        options.AddString(option.c_str());
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(format.driver);
    std::unique_ptr<GDALDataset> copy(
        driver->CreateCopy(encoded.c_str(), source.get(), FALSE, options.List(), nullptr, nullptr));
    if (!copy)
        GdalUtils::fail(file, "written");
    copy.reset();
    if (const VRK::Task* task = VRK::Task::getCurrentTask())
        task->checkCancellation();
    if (!copyOut(encoded, file))
        GdalUtils::fail(file, "written");
    // An ASCII grid keeps its projection beside it; an old one must not outlive it.
    boost::filesystem::path projection = file;
    projection.replace_extension(".prj");
    if (format.driver == std::string("AAIGrid") && !copyOut(folder.file("map.prj"), projection))
        boost::filesystem::remove(projection);
}

const std::set<std::string>& GdalMapWriter::getExtensions()
{
    static const std::set<std::string> extensions = {".tif", ".tiff", ".asc"};
    return extensions;
}

} // namespace Maps
