#include "plugins/prim/carriers/LogTagFunctor.h"

#include "plugins/prim/values/keywords/LogTagType.h"

namespace Prim {

LogTag::LogTag()
    : DataCarrierFunctor("LogTag", "Structure that can be used as a link to other functors.",
                         nullptr)
{
    addCarrierPorts(LogTagType::getInstance(), "Data carrier for log level.",
                    "Object is a log level.");
}

LogTag::~LogTag() = default;

} // namespace Prim
