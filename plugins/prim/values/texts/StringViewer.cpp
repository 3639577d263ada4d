#include "plugins/prim/values/texts/StringViewer.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

StringViewer::StringViewer()
    : VRK::DataViewer("StringViewer", "Viewer for String values", StringType::getInstance())
{
}

StringViewer::~StringViewer() = default;

const std::string& StringViewer::getString() const
{
    return DataCast::as<StringData>(getData()).getValue();
}

} // namespace Prim
