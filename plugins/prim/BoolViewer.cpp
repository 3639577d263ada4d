#include "plugins/prim/BoolViewer.h"

#include "plugins/prim/BoolType.h"
#include "plugins/prim/DataCast.h"

namespace Prim {

BoolViewer::BoolViewer()
    : VRK::DataViewer("BoolViewer", "Viewer for Bool values", BoolType::getInstance())
{
}

BoolViewer::~BoolViewer() = default;

bool BoolViewer::getBool() const { return DataCast::as<BoolData>(getData()).getValue(); }

} // namespace Prim
