#include "base/util/Descriptable.h"

namespace VRK {

Descriptable::Descriptable(const std::string& name, const std::string& description)
    : name_(name), description_(description)
{
}

bool Descriptable::hasBanner() const { return false; }

std::string Descriptable::getBanner() const { return std::string(); }

} // namespace VRK
