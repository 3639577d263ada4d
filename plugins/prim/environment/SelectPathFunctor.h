#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTPATHFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTPATHFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

#include <boost/filesystem/path.hpp>

#include <map>

namespace Prim {

// Picks, for the index on "step", one path of the numbered series that the NumberPath
// functors inside it make: the path with the greatest number not above the index.
class SelectPath : public VRK::ContainerFunctor {
public:
    SelectPath();
    SelectPath(const SelectPath&) = default;
    ~SelectPath() override;

    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;

private:
    using Series = std::map<int, boost::filesystem::path>;

    Series collectPaths() const;
    static void logPaths(const Series& paths);
};

} // namespace Prim

#endif
