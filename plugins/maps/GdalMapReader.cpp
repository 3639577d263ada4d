#include "plugins/maps/GdalMapReader.h"

#include "plugins/maps/GdalRasterSource.h"

namespace Maps {

std::shared_ptr<const Tessaly::RasterSource>
GdalMapReader::open(const boost::filesystem::path& file)
{
    return std::make_shared<const GdalRasterSource>(file, false);
}

} // namespace Maps
