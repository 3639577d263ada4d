#include "plugins/prim/files/FilenameViewer.h"

#include "plugins/prim/files/FilenameData.h"
#include "plugins/prim/values/DataCast.h"

namespace Prim {

FilenameViewer::FilenameViewer(const std::string& name, const std::string& description,
                               const std::shared_ptr<VRK::BaseType>& type)
    : VRK::DataViewer(name, description, type)
{
}

FilenameViewer::~FilenameViewer() = default;

const CompoundFilename& FilenameViewer::getFilename() const
{
    return DataCast::as<FilenameData>(getData()).getCompoundFilename();
}

} // namespace Prim
