#include "apps/host/SizeParser.h"

#include <cctype>
#include <limits>
#include <stdexcept>

namespace {

const std::string Powers = "kmgtpe";

[[noreturn]] void refuse(const std::string& text, const std::string& why)
{
    throw std::invalid_argument("The memory \"" + text + "\" " + why + ".");
}

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// The power of 1024 that a unit stands for; -1 for no unit.
int powerOf(std::string unit)
{
    for (char& c : unit)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    if (unit.empty() || unit == "b")
        return 0;
    const auto power = Powers.find(unit[0]);
    const std::string rest = unit.substr(1);
    if (power == std::string::npos || !(rest.empty() || rest == "b" || rest == "i" || rest == "ib"))
        return -1;
    return int(power) + 1;
}

} // namespace

std::uint64_t SizeParser::parse(const std::string& text)
{
    const std::string size = trimmed(text);
    std::size_t end = 0;
    while (end < size.size() && std::isdigit(static_cast<unsigned char>(size[end])))
        ++end;
    const int power = powerOf(trimmed(size.substr(end)));
    if (end == 0 || power < 0)
        refuse(text, "is neither a number of bytes nor one such as 64M or 1G");
    const std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < end; ++i) {
        const auto digit = std::uint64_t(size[i] - '0');
        if (bytes > (most - digit) / 10)
            refuse(text, "is more bytes than 64 bits hold");
        bytes = bytes * 10 + digit;
    }
    for (int i = 0; i < power; ++i) {
        if (bytes > most / 1024)
            refuse(text, "is more bytes than 64 bits hold");
        bytes *= 1024;
    }
    return bytes;
}
