#ifndef VRK_PLUGINS_MAPS_GDALRASTERSOURCE_H
#define VRK_PLUGINS_MAPS_GDALRASTERSOURCE_H

#include "tessaly/raster/RasterSource.h"

#include <boost/filesystem/path.hpp>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

class GDALDataset;

namespace Maps {

// The first band of a raster file, opened but not read: its cells are read by strips
// as calculations and writers ask for them, through the raster library's block cache.
// Narrow integer cells are read as Int32, unsigned 32-bit and 64-bit integers as
// Float64, Float32 as Float32, other reals as Float64. The file stays open with the
// source, so that a map written over it later does not change what it reads. Several
// threads read at once, each through its own handle on the file.
class GdalRasterSource : public Tessaly::RasterSource {
public:
    // Fails with an UnableToAccessFileException naming the file when it cannot be read
    // as a map. `temporary`: the file's name is removed once it is open, so that the
    // file goes with the source, or with the process.
    GdalRasterSource(const boost::filesystem::path& file, bool temporary);
    ~GdalRasterSource() override;

    const Tessaly::Raster& getHeader() const override { return header_; }
    const Tessaly::Raster* getWhole() const override { return nullptr; }
    // Stops between slices of lines when the run is cancelled.
    Tessaly::Raster readLines(int firstLine, int endLine) const override;

private:
    // A handle taken from the idle ones for one read, waiting for one when all are in
    // use, and given back.
    struct Handle {
        explicit Handle(const GdalRasterSource& source);
        ~Handle();
        Handle(const Handle&) = delete;
        Handle& operator=(const Handle&) = delete;

        const GdalRasterSource& source_;
        std::unique_ptr<GDALDataset> dataset;
    };

    boost::filesystem::path file_;
    // The library reads one dataset on one thread at a time.
    mutable std::mutex mutex_;
    mutable std::condition_variable returned_;
    mutable std::vector<std::unique_ptr<GDALDataset>> idle_;
    Tessaly::Raster header_;
};

} // namespace Maps

#endif
