#ifndef VRK_BASE_UTIL_PROPERTIES_H
#define VRK_BASE_UTIL_PROPERTIES_H

#include <string>
#include <utility>
#include <vector>

namespace VRK {

// Named text properties, kept in the order they were first set.
class Properties {
public:
    // Sets the property; an existing one is replaced only when `overwrite` holds.
    void setProperty(const std::string& name, const std::string& value, bool overwrite = true);
    bool hasProperty(const std::string& name) const;
    // The value, or the empty string when the property is not set.
    std::string getPropertyValue(const std::string& name) const;
    const std::vector<std::pair<std::string, std::string>>& getAll() const { return entries_; }

private:
    std::vector<std::pair<std::string, std::string>> entries_;
};

} // namespace VRK

#endif
