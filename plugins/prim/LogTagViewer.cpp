#include "plugins/prim/LogTagViewer.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/LogTagType.h"

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
