#include "plugins/prim/values/numbers/IntViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/IntType.h"

namespace Prim {

IntViewer::IntViewer()
    : VRK::DataViewer("IntViewer", "Viewer for Int values", IntType::getInstance())
{
}

IntViewer::~IntViewer() = default;

int IntViewer::getInt() const { return DataCast::as<IntData>(getData()).getValue(); }

} // namespace Prim
