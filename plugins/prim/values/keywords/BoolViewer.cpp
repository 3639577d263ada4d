#include "plugins/prim/values/keywords/BoolViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

BoolViewer::BoolViewer()
    : VRK::DataViewer("BoolViewer", "Viewer for Bool values", BoolType::getInstance())
{
}

BoolViewer::~BoolViewer() = default;

bool BoolViewer::getBool() const { return DataCast::as<BoolData>(getData()).getValue(); }

} // namespace Prim
