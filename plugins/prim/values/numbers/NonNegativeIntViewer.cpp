#include "plugins/prim/values/numbers/NonNegativeIntViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"

namespace Prim {

NonNegativeIntViewer::NonNegativeIntViewer()
    : VRK::DataViewer("NonNegativeIntViewer", "Viewer for non-negative integer values",
                      NonNegativeIntType::getInstance())
{
}

NonNegativeIntViewer::~NonNegativeIntViewer() = default;

int NonNegativeIntViewer::getNonNegativeInt() const
{
    return DataCast::as<NonNegativeIntData>(getData()).getValue();
}

} // namespace Prim
