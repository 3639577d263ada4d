#include "base/error/Exception.h"

namespace VRK {

Exception::Exception(const std::string& message) : message_(message) {}

Exception::~Exception() = default;

const char* Exception::what() const noexcept { return message_.c_str(); }

const char* Exception::getName() const { return "Exception"; }

} // namespace VRK
