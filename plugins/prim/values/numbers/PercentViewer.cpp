#include "plugins/prim/values/numbers/PercentViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/PercentType.h"

namespace Prim {

PercentViewer::PercentViewer()
    : VRK::DataViewer("PercentViewer", "Viewer for inspecting percent values",
                      PercentType::getInstance())
{
}

PercentViewer::~PercentViewer() = default;

double PercentViewer::getPercent() const { return DataCast::as<PercentData>(getData()).getValue(); }

} // namespace Prim
