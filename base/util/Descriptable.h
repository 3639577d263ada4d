#ifndef VRK_BASE_UTIL_DESCRIPTABLE_H
#define VRK_BASE_UTIL_DESCRIPTABLE_H

#include "base/util/Stringable.h"

#include <string>
#include <string_view>

namespace VRK {

// Something with a name and a description that a user sees; it may show a banner.
class Descriptable : public Stringable {
public:
    Descriptable(std::string_view name, std::string_view description);

    virtual bool hasBanner() const;
    virtual std::string getBanner() const;

    const std::string& getName() const { return *name_; }
    const std::string& getDescription() const { return *description_; }

private:
    // Names are as few and as lasting as descriptions, and shared the same way.
    const std::string* name_;
    // Shared by every object of the same description, which never changes: a script
    // makes thousands of functors and ports of a few kinds, and copying each one's text
    // was much of the cost of reading it.
    const std::string* description_;
};

} // namespace VRK

#endif
