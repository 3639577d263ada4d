#ifndef VRK_PLUGINS_MAPS_LOOKUPTABLECSVREADER_H
#define VRK_PLUGINS_MAPS_LOOKUPTABLECSVREADER_H

#include "tessaly/images/LookupTable.h"

#include <boost/filesystem/path.hpp>

#include <istream>
#include <memory>
#include <string>

namespace Maps {

// Reads a table from comma-separated text: one "key,value" pair of numbers a line, the
// first line optionally a header of two words, blank lines skipped. Numbers are read as
// RealText reads them; a value may be "nan", for null, but a key may not. A bad line fails with a message
// that starts with "FILE:LINE: ".
class LookupTableCsvReader {
public:
    static std::shared_ptr<const Tessaly::LookupTable> read(const boost::filesystem::path& file);
    // `name` stands for the file in messages.
    static std::shared_ptr<const Tessaly::LookupTable> read(std::istream& in,
                                                            const std::string& name);
};

} // namespace Maps

#endif
