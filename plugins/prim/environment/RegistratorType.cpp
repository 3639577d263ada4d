#include "plugins/prim/environment/RegistratorType.h"

#include <cctype>

namespace Prim {

namespace {
// "numbered lookup table" as "NumberedLookupTable".
std::string camelCaseOf(const std::string& words)
{
    std::string name;
    bool wordStarts = true;
    for (char c : words) {
        if (c == ' ') {
            wordStarts = true;
            continue;
        }
        name += wordStarts ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        wordStarts = false;
    }
    return name;
}
} // namespace

RegistratorType::RegistratorType(const std::string& words)
    : VRK::BaseType(camelCaseOf(words) + "Registrator",
                    "Functors with " + words + " registration capabilities")
{
}

RegistratorType::~RegistratorType() = default;

bool RegistratorType::registers(const VRK::Functor& functor) const
{
    return functor.getType()->getName() == getName();
}

} // namespace Prim
