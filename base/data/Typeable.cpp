#include "base/data/Typeable.h"

namespace VRK {

Typeable::Typeable(const std::string& name, const std::string& description,
                   const std::shared_ptr<BaseType>& type)
    : Descriptable(name, description), type_(type)
{
}

} // namespace VRK
