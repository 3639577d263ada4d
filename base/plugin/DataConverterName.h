#ifndef VRK_BASE_PLUGIN_DATACONVERTERNAME_H
#define VRK_BASE_PLUGIN_DATACONVERTERNAME_H

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

#endif
