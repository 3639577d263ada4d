#include "plugins/prim/DoubleViewer.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/DoubleType.h"

namespace Prim {

DoubleViewer::DoubleViewer()
    : VRK::DataViewer("DoubleViewer", "Viewer used to inspect real values.",
                      DoubleType::getInstance())
{
}

DoubleViewer::~DoubleViewer() = default;

double DoubleViewer::getDouble() const { return DataCast::as<DoubleData>(getData()).getValue(); }

} // namespace Prim
