#include "plugins/prim/values/texts/NameViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/texts/NameType.h"

namespace Prim {

NameViewer::NameViewer()
    : VRK::DataViewer("NameViewer", "Viewer for names", NameType::getInstance())
{
}

NameViewer::~NameViewer() = default;

const std::string& NameViewer::getName() const
{
    return DataCast::as<NameData>(getData()).getValue();
}

} // namespace Prim
