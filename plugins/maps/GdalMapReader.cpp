#include "plugins/maps/GdalMapReader.h"

#include "plugins/maps/GdalRasterSource.h"

namespace Maps {

std::shared_ptr<const Tessaly::RasterSource>
GdalMapReader::open(const boost::filesystem::path& file)
{
    return std::make_shared<const GdalRasterSource>(file, false);
}

std::shared_ptr<const Tessaly::Raster> GdalMapReader::read(const boost::filesystem::path& file)
{
    const GdalRasterSource source(file, false);
    return std::make_shared<const Tessaly::Raster>(
        source.readLines(0, source.getHeader().getLineCount()));
}

} // namespace Maps
