#include "plugins/prim/values/numbers/IntSetViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/IntSetType.h"

namespace Prim {

IntSetViewer::IntSetViewer()
    : VRK::DataViewer("IntSetViewer", "Viewer for inspecting integer sets",
                      IntSetType::getInstance())
{
}

IntSetViewer::~IntSetViewer() = default;

size_t IntSetViewer::getIntCount() const
{
    return DataCast::as<IntSetData>(getData()).getValue().size();
}

int IntSetViewer::getInt(size_t index) const
{
    return IntSetEditor::elementAt(DataCast::as<IntSetData>(getData()).getValue(), index);
}

} // namespace Prim
