#include "base/script/TemporaryFileName.h"

#include <boost/filesystem/operations.hpp>

#include <cctype>
#include <climits>
#include <string>

#include <unistd.h>

namespace VRK {

namespace {

namespace fs = boost::filesystem;

const std::string Extension = ".tmp";
constexpr size_t RandomDigits = 8;
// The longest process id in decimal.
constexpr size_t PidDigits = 10;

// "." + the target's name + ".", the name cut so that the whole temporary name, with
// the longest process id, stays within the folder's limit on names.
std::string prefixOf(const fs::path& target)
{
    const fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
    const long limit = ::pathconf(folder.c_str(), _PC_NAME_MAX);
    const size_t suffix = 1 + PidDigits + 1 + RandomDigits + Extension.size();
    const size_t room = static_cast<size_t>(limit > 0 ? limit : NAME_MAX) - suffix - 1;
    return "." + target.filename().string().substr(0, room) + ".";
}

bool isNumber(const std::string& text, size_t maxDigits, bool hex)
{
    if (text.empty() || text.size() > maxDigits)
        return false;
    for (char c : text)
        if (!(hex ? std::isxdigit(static_cast<unsigned char>(c))
                  : std::isdigit(static_cast<unsigned char>(c))))
            return false;
    return true;
}

} // namespace

fs::path TemporaryFileName::beside(const fs::path& target)
{
    const std::string random = fs::unique_path(std::string(RandomDigits, '%')).string();
    return target.parent_path()
           / (prefixOf(target) + std::to_string(::getpid()) + "." + random + Extension);
}

pid_t TemporaryFileName::writerOf(const fs::path& temporary, const fs::path& target)
{
    const std::string name = temporary.filename().string();
    const std::string prefix = prefixOf(target);
    const size_t tail = 1 + RandomDigits + Extension.size();
    if (name.size() <= prefix.size() + tail || name.compare(0, prefix.size(), prefix) != 0
        || name.compare(name.size() - Extension.size(), Extension.size(), Extension) != 0)
        return 0;
    const std::string pid = name.substr(prefix.size(), name.size() - prefix.size() - tail);
    const std::string random = name.substr(name.size() - tail + 1, RandomDigits);
    if (name[name.size() - tail] != '.' || !isNumber(random, RandomDigits, true)
        || !isNumber(pid, PidDigits, false))
        return 0;
    const long long writer = std::stoll(pid);
    return writer > 0 && writer <= INT_MAX ? static_cast<pid_t>(writer) : 0;
}

} // namespace VRK
