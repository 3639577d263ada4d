#include "plugins/maps/LookupTableCsvWriter.h"

#include "base/script/AtomicFileWriter.h"

#include <charconv>
#include <cmath>

namespace Maps {

namespace {

void writeNumber(std::ostream& out, double number)
{
    if (std::isnan(number)) {
        out << "nan";
        return;
    }
    char text[32];
    const std::to_chars_result written = std::to_chars(text, text + sizeof(text), number);
    out.write(text, written.ptr - text);
}

} // namespace

void LookupTableCsvWriter::write(const Tessaly::LookupTable& table,
                                 const boost::filesystem::path& file)
{
    VRK::AtomicFileWriter::write(file, [&](std::ostream& out) { write(table, out); });
}

void LookupTableCsvWriter::write(const Tessaly::LookupTable& table, std::ostream& out)
{
    out << "key,value\n";
    Tessaly::LookupTable::ConstIterator entries = table.getIterator();
    while (entries.hasNext()) {
        const std::pair<double, double> entry = entries.next();
        writeNumber(out, entry.first);
        out << ',';
        writeNumber(out, entry.second);
        out << '\n';
    }
}

} // namespace Maps
