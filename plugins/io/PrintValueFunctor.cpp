#include "plugins/io/PrintValueFunctor.h"

#include "base/Logger.h"
#include "plugins/prim/DoubleType.h"
#include "plugins/prim/StringType.h"

#include <cassert>
#include <charconv>

namespace Io {

PrintValue::PrintValue() : Functor("PrintValue", "Write a value to the log.", nullptr)
{
    addInputPort("value", "Value to write.", Prim::DoubleType::getInstance(), false);
    addOptionalInputPort("label", "Text written before the value.", Prim::StringType::getInstance(),
                         false, 0);
}

PrintValue::~PrintValue() = default;

void PrintValue::runImpl()
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (logger->isLogging(VRK::result))
        logger->log(VRK::result, getInputPortValue<Prim::StringData>("label")
                                     + format(getInputPortValue<Prim::DoubleData>("value")));
}

std::string PrintValue::format(double value)
{
    char text[32];
    const std::to_chars_result written = std::to_chars(text, text + sizeof text, value);
    assert(written.ec == std::errc() && "written.ec == std::errc()");
    return std::string(text, written.ptr);
}

} // namespace Io
