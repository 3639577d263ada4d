#include "plugins/prim/files/WorkdirData.h"

namespace Prim {

WorkdirData::WorkdirData(const boost::filesystem::path& workdir)
    : VRK::Data<boost::filesystem::path, VRK::NullType, VRK::NullType>(workdir)
{
}

WorkdirData::~WorkdirData() = default;

} // namespace Prim
