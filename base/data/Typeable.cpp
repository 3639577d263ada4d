#include "base/data/Typeable.h"

namespace VRK {

Typeable::Typeable(std::string_view name, std::string_view description,
                   const std::shared_ptr<BaseType>& type)
    : Descriptable(name, description), type_(type)
{
}

} // namespace VRK
