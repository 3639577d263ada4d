#ifndef VRK_PLUGINS_PRIM_FILES_WORKDIRDATA_H
#define VRK_PLUGINS_PRIM_FILES_WORKDIRDATA_H

#include "base/data/Data.h"
#include "base/data/NullType.h"

#include <boost/filesystem/path.hpp>

#include <string>

namespace Prim {

// The complete path of a work directory, as a Workdir container publishes it to the
// functors inside. Produced by functors only: it has no editor and no viewer.
class WorkdirData : public VRK::Data<boost::filesystem::path, VRK::NullType, VRK::NullType> {
public:
    WorkdirData() = default;
    explicit WorkdirData(const boost::filesystem::path& workdir);
    WorkdirData(const WorkdirData&) = default;
    ~WorkdirData() override;

    std::string getPathString() const { return getValue().string(); }
};

} // namespace Prim

#endif
