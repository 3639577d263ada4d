#ifndef VRK_BASE_UTIL_DESCRIPTABLE_H
#define VRK_BASE_UTIL_DESCRIPTABLE_H

#include "base/util/Stringable.h"

#include <string>

namespace VRK {

// Something with a name and a description that a user sees; it may show a banner.
class Descriptable : public Stringable {
public:
    Descriptable(const std::string& name, const std::string& description);

    virtual bool hasBanner() const;
    virtual std::string getBanner() const;

    const std::string& getName() const { return name_; }
    const std::string& getDescription() const { return description_; }

private:
    std::string name_;
    std::string description_;
};

} // namespace VRK

#endif
