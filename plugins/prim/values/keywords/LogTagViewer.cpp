#include "plugins/prim/values/keywords/LogTagViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/keywords/LogTagType.h"

namespace Prim {

LogTagViewer::LogTagViewer()
    : VRK::DataViewer("LogTagViewer", "Viewer for LogTag values", LogTagType::getInstance())
{
}

LogTagViewer::~LogTagViewer() = default;

bool LogTagViewer::getLogTag() const
{
    return DataCast::as<LogTagData>(getData()).getValue() != VRK::unconditional;
}

} // namespace Prim
