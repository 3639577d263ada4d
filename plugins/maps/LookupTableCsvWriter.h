#ifndef VRK_PLUGINS_MAPS_LOOKUPTABLECSVWRITER_H
#define VRK_PLUGINS_MAPS_LOOKUPTABLECSVWRITER_H

#include "tessaly/images/LookupTable.h"

#include <boost/filesystem/path.hpp>

#include <ostream>

namespace Maps {

// Writes a table as comma-separated text: the header "key,value", then one line a key
// in ascending order, each number in the shortest form that reads back the same; a
// null value is written "nan".
class LookupTableCsvWriter {
public:
    // Through a temporary file and a rename.
    static void write(const Tessaly::LookupTable& table, const boost::filesystem::path& file);
    static void write(const Tessaly::LookupTable& table, std::ostream& out);
};

} // namespace Maps

#endif
