#include "base/util/TypeNameUtils.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace VRK {

std::string TypeNameUtils::getReadableName(const std::type_info& type)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> readable(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
    return status == 0 && readable ? std::string(readable.get()) : std::string(type.name());
}

} // namespace VRK
