#ifndef VRK_PLUGINS_MAPS_SOURCEDATASET_H
#define VRK_PLUGINS_MAPS_SOURCEDATASET_H

#include "tessaly/raster/RasterSource.h"

#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <exception>

namespace Maps {

// A map kept anywhere, seen by the raster library as a dataset of one band in blocks
// of one line, so that its writers copy a map larger than memory: lines are read from
// the source a strip at a time, in the order the writer asks for them.
class SourceDataset : public GDALDataset {
public:
    // The source must outlive the dataset.
    explicit SourceDataset(const Tessaly::RasterSource& source);
    ~SourceDataset() override;

    CPLErr GetGeoTransform(double* transform) override;
    const OGRSpatialReference* GetSpatialRef() const override;
    // What the source threw while the library read it (cancellation, a failed read),
    // which the library saw only as a failed block; nothing when it threw nothing.
    void rethrowFailure() const;

private:
    class LineBand;

    const Tessaly::RasterSource& source_;
    std::exception_ptr failure_;
    OGRSpatialReference projection_;
    bool hasProjection_ = false;
};

} // namespace Maps

#endif
