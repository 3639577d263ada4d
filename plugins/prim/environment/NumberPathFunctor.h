#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERPATHFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERPATHFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Names a file path with a number, for a series of paths. Unlike the hook
// registrators it runs as an ordinary functor, doing nothing but pulling its inputs;
// SelectPath reads them afterwards.
class NumberPath : public VRK::Functor {
public:
    NumberPath();
    NumberPath(const NumberPath&) = default;
    NumberPath& operator=(const NumberPath&) = default;
    ~NumberPath() override;

    void runImpl() override;
};

} // namespace Prim

#endif
