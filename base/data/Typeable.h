#ifndef VRK_BASE_DATA_TYPEABLE_H
#define VRK_BASE_DATA_TYPEABLE_H

#include "base/util/Descriptable.h"

#include <memory>

namespace VRK {

class BaseType;

// A described object of a type: functors, ports and data holders.
class Typeable : public Descriptable {
public:
    Typeable(std::string_view name, std::string_view description,
             const std::shared_ptr<BaseType>& type);

    // By reference: ports ask for their type at every pass, from many threads, and a
    // copy would make them all count references on the same type.
    const std::shared_ptr<BaseType>& getType() const { return type_; }

private:
    std::shared_ptr<BaseType> type_;
};

} // namespace VRK

#endif
