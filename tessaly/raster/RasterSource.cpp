#include "tessaly/raster/RasterSource.h"

namespace Tessaly {

RasterSource::~RasterSource() = default;

} // namespace Tessaly
