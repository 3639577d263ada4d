#ifndef VRK_BASE_UTIL_PROPERTIABLE_H
#define VRK_BASE_UTIL_PROPERTIABLE_H

#include "base/util/Properties.h"

namespace VRK {

// The property key of a functor's comment.
extern const char* const FUNCTOR_COMMENT_PROPERTY_NAME;

// An object that carries properties (a functor's comment, a writer's hints).
class Propertiable {
public:
    virtual ~Propertiable();

    void setProperty(const std::string& name, const std::string& value, bool overwrite = true)
    {
        properties_.setProperty(name, value, overwrite);
    }
    const Properties& getProperties() const { return properties_; }

private:
    Properties properties_;
};

} // namespace VRK

#endif
