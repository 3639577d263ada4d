#include "plugins/prim/values/numbers/DoubleViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

DoubleViewer::DoubleViewer()
    : VRK::DataViewer("DoubleViewer", "Viewer used to inspect real values.",
                      DoubleType::getInstance())
{
}

DoubleViewer::~DoubleViewer() = default;

double DoubleViewer::getDouble() const { return DataCast::as<DoubleData>(getData()).getValue(); }

} // namespace Prim
