#ifndef VRK_BASE_PLUGIN_DATACONVERTERNAME_H
#define VRK_BASE_PLUGIN_DATACONVERTERNAME_H

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

namespace VRK {

// The key of a converter: the names of its source and target types.
class DataConverterName {
public:
    DataConverterName(const std::string& source, const std::string& target);
    DataConverterName(const DataConverterName&) = default;
    DataConverterName& operator=(const DataConverterName&) = default;
    ~DataConverterName() = default;

    bool operator<(const DataConverterName& other) const;
    bool operator==(const DataConverterName& other) const;

    const std::string& getSource() const { return source_; }
    const std::string& getTarget() const { return target_; }

private:
    std::string source_;
    std::string target_;
};

// Prints "Source->Target".
std::ostream& operator<<(std::ostream& out, const DataConverterName& name);

} // namespace VRK

// Converters are looked up by name in a hash table, as every factory's products are.
template <>
struct std::hash<VRK::DataConverterName> {
    size_t operator()(const VRK::DataConverterName& name) const
    {
        const size_t source = std::hash<std::string>()(name.getSource());
        return source
               ^ (std::hash<std::string>()(name.getTarget()) + 0x9e3779b9 + (source << 6)
                  + (source >> 2));
    }
};

#endif
