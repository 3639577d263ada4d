#ifndef VRK_PLUGINS_MAPS_MUXMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_MUXMAPFUNCTOR_H

#include "base/graph/Functor.h"

namespace Maps {

// Carries a map through a loop: "initial" on a loop's first pass, then what "feedback",
// a feedback port that may close a cycle, brought from the previous pass. The map is
// passed on, never copied, so a pass holds no more than the maps it reads and makes.
class MuxMap : public VRK::Functor {
public:
    MuxMap();
    MuxMap(const MuxMap&) = default;
    MuxMap& operator=(const MuxMap&) = default;
    ~MuxMap() override;

    void runImpl() override;
};

} // namespace Maps

#endif
