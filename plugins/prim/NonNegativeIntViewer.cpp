#include "plugins/prim/NonNegativeIntViewer.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/NonNegativeIntType.h"

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
