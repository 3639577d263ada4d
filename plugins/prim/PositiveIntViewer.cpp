#include "plugins/prim/PositiveIntViewer.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/PositiveIntType.h"

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
