#include "plugins/prim/environment/RegistratorWords.h"

#include <cctype>

namespace Prim {

namespace {
std::string capitalized(std::string word)
{
    word[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(word[0])));
    return word;
}
} // namespace

RegistratorWords::RegistratorWords(const char* name, const char* thing, const char* valuePort,
                                   bool numbered)
    : name(name), valuePort(valuePort)
{
    const std::string keyWord = numbered ? "number" : "name";
    description = std::string("Identify a ") + thing + " by assigning a " + keyWord + " to it.";
    bannerPrefix = numbered ? capitalized(valuePort) + " " : std::string();
    valueDescription = numbered ? "Any " + this->valuePort + "." : capitalized(valuePort) + ".";
    keyPort = this->valuePort + capitalized(keyWord);
    keyDescription = capitalized(valuePort) + " " + keyWord + " identifier.";
}

} // namespace Prim
