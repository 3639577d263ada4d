#include "plugins/maps/TemporaryMapFile.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/UnableToAccessFileException.h"
#include "plugins/maps/GdalRasterSource.h"
#include "plugins/maps/GdalUtils.h"

#include <boost/filesystem/operations.hpp>
#include <cpl_error.h>
#include <cpl_string.h>
#include <gdal_priv.h>

namespace Maps {

TemporaryMapFile::TemporaryMapFile(const Tessaly::Raster& header)
    : file_(boost::filesystem::temp_directory_path()
            / boost::filesystem::unique_path("vrk-map-%%%%-%%%%-%%%%.tif")),
      listed_(file_)
{
    GdalUtils::registerFormats();
    CPLErrorReset();
    // Uncompressed lines: written and read in the order they are calculated, the file
    // costs little more than the disk's own speed.
    CPLStringList options;
    options.AddString("BIGTIFF=YES");
    options.AddString("SPARSE_OK=TRUE");
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    const Tessaly::Grid& grid = header.getGrid();
    dataset_.reset(driver->Create(file_.string().c_str(), grid.columns, grid.lines, 1,
                                  GdalUtils::gdalTypeOf(header.getCellType()), options.List()));
    if (!dataset_)
        fail();
    GdalUtils::describe(*dataset_, header);
}

TemporaryMapFile::~TemporaryMapFile()
{
    dataset_.reset();
    boost::system::error_code ignored;
    boost::filesystem::remove(file_, ignored);
}

void TemporaryMapFile::fail() const
{
    VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
        "The temporary file \"" + file_.string()
        + "\" that holds a map beyond the memory budget can not be written" + GdalUtils::lastError()
        + ".");
}

void TemporaryMapFile::write(const Tessaly::Raster& strip)
{
    const int lines = strip.getEndLine() - strip.getFirstLine();
    const int columns = strip.getColumnCount();
    CPLErrorReset();
    if (dataset_->GetRasterBand(1)->RasterIO(
            GF_Write, 0, strip.getFirstLine(), columns, lines, const_cast<void*>(strip.rawCells()),
            columns, lines, GdalUtils::gdalTypeOf(strip.getCellType()), 0, 0, nullptr)
        != CE_None)
        fail();
}

std::shared_ptr<const Tessaly::RasterSource> TemporaryMapFile::finish()
{
    CPLErrorReset();
    // The last lines reach the disk, or fail to, only when the file is closed.
    dataset_.reset();
    if (CPLGetLastErrorType() == CE_Failure)
        fail();
    return std::make_shared<const GdalRasterSource>(file_, true);
}

} // namespace Maps
