#include "plugins/io/PrintUtils.h"

#include "base/log/Logger.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Io {

void PrintUtils::addPorts(VRK::Functor& printer, const std::string& input,
                          const std::string& inputDescription,
                          const std::shared_ptr<VRK::BaseType>& type,
                          const std::string& labelDescription)
{
    printer.addInputPort(input, inputDescription, type, false);
    printer.addOptionalInputPort("label", labelDescription, Prim::StringType::getInstance(), false,
                                 0);
}

void PrintUtils::logLabelled(const VRK::Functor& printer, const std::function<std::string()>& text)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (logger->isLogging(VRK::result))
        logger->log(VRK::result, printer.getInputPortValue<Prim::StringData>("label") + text());
}

} // namespace Io
