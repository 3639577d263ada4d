#ifndef VRK_TESSALY_RASTER_MEMORYRASTERSOURCE_H
#define VRK_TESSALY_RASTER_MEMORYRASTERSOURCE_H

#include "tessaly/raster/RasterSource.h"

#include <memory>

namespace Tessaly {

// A map held whole in memory.
class MemoryRasterSource : public RasterSource {
public:
    // `reserved`: the bytes taken from the MemoryBudget for the raster, given back with
    // the source.
    explicit MemoryRasterSource(std::shared_ptr<const Raster> raster, std::size_t reserved = 0);
    ~MemoryRasterSource() override;

    const Raster& getHeader() const override { return header_; }
    const Raster* getWhole() const override { return raster_.get(); }
    Raster readLines(int firstLine, int endLine) const override;

private:
    std::shared_ptr<const Raster> raster_;
    Raster header_;
    std::size_t reserved_;
};

} // namespace Tessaly

#endif
