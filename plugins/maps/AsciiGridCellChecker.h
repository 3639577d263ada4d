#ifndef VRK_PLUGINS_MAPS_ASCIIGRIDCELLCHECKER_H
#define VRK_PLUGINS_MAPS_ASCIIGRIDCELLCHECKER_H

#include <boost/filesystem/path.hpp>

namespace Maps {

// Checks the text of an ASCII grid before the raster library reads it, since the
// library reads a cell or header value that is not a number ("abc", "0x10", "1e400")
// as some number without a word. The header values and every cell must be numbers as
// RealText reads them. A bad value fails with a message that starts with "FILE:LINE: ".
class AsciiGridCellChecker {
public:
    static void check(const boost::filesystem::path& file);
};

} // namespace Maps

#endif
