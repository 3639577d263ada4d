#include "plugins/maps/SourceDataset.h"

#include "plugins/maps/GdalUtils.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace Maps {

namespace {

// Lines read from the source at once.
constexpr int StripLines = 256;

} // namespace

// Each block is one line, copied from the strip last read.
class SourceDataset::LineBand : public GDALRasterBand {
public:
    LineBand(SourceDataset& dataset, const Tessaly::RasterSource& source) : source_(source)
    {
        const Tessaly::Raster& header = source.getHeader();
        poDS = &dataset;
        nBand = 1;
        nRasterXSize = header.getColumnCount();
        nRasterYSize = header.getLineCount();
        eDataType = GdalUtils::gdalTypeOf(header.getCellType());
        nBlockXSize = nRasterXSize;
        nBlockYSize = 1;
    }

    CPLErr IReadBlock(int, int line, void* cells) override { return copyLine(line, cells); }

    // Whole lines in the band's own type, as writers copy, go straight from the strips,
    // so that they take no room in the library's block cache.
    CPLErr IRasterIO(GDALRWFlag flag, int column, int line, int width, int height, void* cells,
                     int bufferWidth, int bufferHeight, GDALDataType bufferType,
                     GSpacing cellSpacing, GSpacing lineSpacing,
                     GDALRasterIOExtraArg* extra) override
    {
        const int cellSize = GDALGetDataTypeSizeBytes(eDataType);
        const bool wholeLines = flag == GF_Read && column == 0 && width == nRasterXSize
                                && bufferWidth == width && bufferHeight == height
                                && bufferType == eDataType && cellSpacing == cellSize
                                && lineSpacing == GSpacing(cellSize) * width;
        if (!wholeLines)
            return GDALRasterBand::IRasterIO(flag, column, line, width, height, cells, bufferWidth,
                                             bufferHeight, bufferType, cellSpacing, lineSpacing,
                                             extra);
        for (int k = 0; k < height; ++k)
            if (copyLine(line + k, static_cast<unsigned char*>(cells) + k * lineSpacing) != CE_None)
                return CE_Failure;
        return CE_None;
    }

    double GetNoDataValue(int* hasNoData) override
    {
        const Tessaly::Raster& header = source_.getHeader();
        if (hasNoData)
            *hasNoData = header.hasNoData();
        return header.getNoData();
    }

private:
    // An exception must not cross the library's frames: it is kept for the writer.
    CPLErr copyLine(int line, void* cells)
    {
        try {
            readStrip(line);
        } catch (...) {
            static_cast<SourceDataset*>(poDS)->failure_ = std::current_exception();
            CPLError(CE_Failure, CPLE_AppDefined, "The map could not be read.");
            return CE_Failure;
        }
        const size_t lineBytes =
            size_t(nRasterXSize) * Tessaly::Raster::getCellSize(strip_->getCellType());
        std::memcpy(cells,
                    static_cast<const unsigned char*>(strip_->rawCells())
                        + size_t(line - strip_->getFirstLine()) * lineBytes,
                    lineBytes);
        return CE_None;
    }

    void readStrip(int line)
    {
        if (!strip_ || !strip_->holdsLines(line, line + 1))
            strip_ = std::make_unique<Tessaly::Raster>(
                source_.readLines(line, std::min(nRasterYSize, line + StripLines)));
    }

    const Tessaly::RasterSource& source_;
    std::unique_ptr<Tessaly::Raster> strip_;
};

SourceDataset::SourceDataset(const Tessaly::RasterSource& source) : source_(source)
{
    const Tessaly::Raster& header = source.getHeader();
    nRasterXSize = header.getColumnCount();
    nRasterYSize = header.getLineCount();
    const std::string& projection = header.getGrid().projection;
    projection_.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    hasProjection_ =
        !projection.empty() && projection_.importFromWkt(projection.c_str()) == OGRERR_NONE;
    SetBand(1, new LineBand(*this, source));
}

SourceDataset::~SourceDataset() = default;

CPLErr SourceDataset::GetGeoTransform(double* transform)
{
    const auto& geoTransform = source_.getHeader().getGrid().geoTransform;
    std::copy(geoTransform.begin(), geoTransform.end(), transform);
    return CE_None;
}

void SourceDataset::rethrowFailure() const
{
    if (failure_)
        std::rethrow_exception(failure_);
}

const OGRSpatialReference* SourceDataset::GetSpatialRef() const
{
    return hasProjection_ ? &projection_ : nullptr;
}

} // namespace Maps
