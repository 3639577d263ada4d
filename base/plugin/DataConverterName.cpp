#include "base/plugin/DataConverterName.h"

#include <tuple>

namespace VRK {

DataConverterName::DataConverterName(const std::string& source, const std::string& target)
    : source_(source), target_(target)
{
}

bool DataConverterName::operator<(const DataConverterName& other) const
{
    return std::tie(source_, target_) < std::tie(other.source_, other.target_);
}

bool DataConverterName::operator==(const DataConverterName& other) const
{
    return source_ == other.source_ && target_ == other.target_;
}

std::ostream& operator<<(std::ostream& out, const DataConverterName& name)
{
    return out << name.getSource() << "->" << name.getTarget();
}

} // namespace VRK
