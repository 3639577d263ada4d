#include "plugins/maps/LookupTableCsvReader.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/error/UnableToAccessFileException.h"
#include "base/script/ScriptTextInput.h"
#include "base/util/PrintableText.h"
#include "base/util/RealText.h"

#include <boost/algorithm/string/trim.hpp>

#include <cmath>
#include <fstream>
#include <map>

namespace Maps {

namespace {

// A field or line as a message quotes it: the file may hold anything, of any length.
std::string quoted(const std::string& text)
{
    return "\"" + VRK::PrintableText::cut(boost::algorithm::trim_copy(text)) + "\"";
}

class Lines {
public:
    explicit Lines(const std::string& name) : name_(name) {}

    [[noreturn]] void refuse(int line, const std::string& problem) const
    {
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(name_ + ":" + std::to_string(line)
                                                              + ": " + problem);
    }

    // False for a header: a first line of two fields that are no numbers.
    bool add(int number, const std::string& line)
    {
        const size_t comma = line.find(',');
        if (comma == std::string::npos || line.find(',', comma + 1) != std::string::npos)
            refuse(number,
                   "The line " + quoted(line) + " does not hold two fields separated by a comma.");
        const std::string key = boost::algorithm::trim_copy(line.substr(0, comma));
        const std::string value = boost::algorithm::trim_copy(line.substr(comma + 1));
        const VRK::RealText keyText(key);
        const VRK::RealText valueText(value);
        const bool first = !seenLine_;
        seenLine_ = true;
        if (first && !keyText.beginsAsNumber() && !valueText.beginsAsNumber())
            return false;
        if (!keyText.isNumber())
            refuse(number, keyText.describeProblem("key"));
        if (std::isnan(keyText.getValue()))
            refuse(number, "The key " + quoted(key) + " is null, which no key may be.");
        if (!valueText.isNumber())
            refuse(number, valueText.describeProblem("value"));
        const auto added = lines_.emplace(keyText.getValue(), number);
        if (!added.second)
            refuse(number, "The key " + quoted(key) + " is already given at line "
                               + std::to_string(added.first->second) + ".");
        entries_.emplace(keyText.getValue(), valueText.getValue());
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
        if (number == 1)
            VRK::ScriptTextInput::dropByteOrderMark(line);
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
