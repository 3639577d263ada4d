#include "plugins/prim/FilenameViewer.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/FilenameData.h"

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
