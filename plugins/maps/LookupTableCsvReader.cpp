#include "plugins/maps/LookupTableCsvReader.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/error/UnableToAccessFileException.h"
#include "base/util/PrintableText.h"

#include <boost/algorithm/string/trim.hpp>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <optional>

namespace Maps {

namespace {

// A field or line as a message quotes it: the file may hold anything, of any length.
std::string quoted(const std::string& text)
{
    return "\"" + VRK::PrintableText::cut(boost::algorithm::trim_copy(text)) + "\"";
}

std::optional<double> numberOf(std::string text)
{
    boost::algorithm::trim(text);
    if (text.empty())
        return std::nullopt;
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (*end != 0)
        return std::nullopt;
    return number;
}

class Lines {
public:
    explicit Lines(const std::string& name) : name_(name) {}

    [[noreturn]] void refuse(int line, const std::string& problem) const
    {
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(name_ + ":" + std::to_string(line)
                                                              + ": " + problem);
    }

    // False for a header: a first line of two words.
    bool add(int number, const std::string& line)
    {
        const size_t comma = line.find(',');
        const std::string key = line.substr(0, comma);
        const std::string value = comma == std::string::npos ? "" : line.substr(comma + 1);
        const std::optional<double> keyNumber = numberOf(key);
        const std::optional<double> valueNumber = numberOf(value);
        if (comma == std::string::npos || value.find(',') != std::string::npos)
            refuse(number,
                   "The line " + quoted(line) + " does not hold two fields separated by a comma.");
        const bool first = !seenLine_;
        seenLine_ = true;
        if (first && !keyNumber && !valueNumber)
            return false;
        if (!keyNumber || std::isnan(*keyNumber))
            refuse(number, "The key " + quoted(key) + " is not a number.");
        if (!valueNumber)
            refuse(number,
                   "The value " + quoted(value) + " is not a number.");
        const auto added = lines_.emplace(*keyNumber, number);
        if (!added.second)
            refuse(number, "The key " + quoted(key) + " is already given at line "
                               + std::to_string(added.first->second) + ".");
        entries_.emplace(*keyNumber, *valueNumber);
        return true;
    }

    Tessaly::LookupTable::Entries& entries() { return entries_; }

private:
    std::string name_;
    bool seenLine_ = false;
    std::map<double, int> lines_;
    Tessaly::LookupTable::Entries entries_;
};

} // namespace

std::shared_ptr<const Tessaly::LookupTable>
LookupTableCsvReader::read(const boost::filesystem::path& file)
{
    std::ifstream in(file.string(), std::ios::binary);
    if (!in)
        VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>("The file \"" + file.string()
                                                                     + "\" can not be read.");
    return read(in, file.string());
}

std::shared_ptr<const Tessaly::LookupTable> LookupTableCsvReader::read(std::istream& in,
                                                                       const std::string& name)
{
    Lines lines(name);
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!boost::algorithm::trim_copy(line).empty())
            lines.add(number, line);
    }
    if (in.bad())
        VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>("The file \"" + name
                                                                     + "\" can not be read.");
    return std::make_shared<const Tessaly::LookupTable>(std::move(lines.entries()));
}

} // namespace Maps
