#include "tessaly/raster/MemoryRasterSource.h"

#include "tessaly/raster/MemoryBudget.h"

#include <cassert>
#include <cstring>

namespace Tessaly {

MemoryRasterSource::MemoryRasterSource(std::shared_ptr<const Raster> raster, std::size_t reserved)
    : raster_(std::move(raster)), header_(Raster::stripOf(*raster_, 0, 0)), reserved_(reserved)
{
    assert(raster_->holdsLines(0, raster_->getLineCount()) && "a whole raster");
}

MemoryRasterSource::~MemoryRasterSource() { MemoryBudget::getInstance().release(reserved_); }

Raster MemoryRasterSource::readLines(int firstLine, int endLine) const
{
    Raster strip = Raster::stripOf(*raster_, firstLine, endLine);
    const size_t lineBytes =
        size_t(raster_->getColumnCount()) * Raster::getCellSize(raster_->getCellType());
    std::memcpy(strip.rawCells(),
                static_cast<const unsigned char*>(raster_->rawCells())
                    + size_t(firstLine) * lineBytes,
                size_t(endLine - firstLine) * lineBytes);
    return strip;
}

} // namespace Tessaly
