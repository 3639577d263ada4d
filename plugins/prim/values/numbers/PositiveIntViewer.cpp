#include "plugins/prim/values/numbers/PositiveIntViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

PositiveIntViewer::PositiveIntViewer()
    : VRK::DataViewer("PositiveIntViewer", "Viewer for positive integer values",
                      PositiveIntType::getInstance())
{
}

PositiveIntViewer::~PositiveIntViewer() = default;

int PositiveIntViewer::getPositiveInt() const
{
    return DataCast::as<PositiveIntData>(getData()).getValue();
}

} // namespace Prim
