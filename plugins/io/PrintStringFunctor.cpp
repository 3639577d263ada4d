#include "plugins/io/PrintStringFunctor.h"

#include "base/Logger.h"
#include "plugins/prim/StringType.h"

namespace Io {

PrintString::PrintString() : Functor("PrintString", "Write a string to the log.", nullptr)
{
    addInputPort("string", "String to write.", Prim::StringType::getInstance(), false);
    addOptionalInputPort("label", "Text written before the string.",
                         Prim::StringType::getInstance(), false, 0);
}

PrintString::~PrintString() = default;

void PrintString::runImpl()
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (logger->isLogging(VRK::result))
        logger->log(VRK::result, getInputPortValue<Prim::StringData>("label")
                                     + getInputPortValue<Prim::StringData>("string"));
}

} // namespace Io
