#ifndef VRK_BASE_GRAPH_VERIFIABLE_H
#define VRK_BASE_GRAPH_VERIFIABLE_H

namespace VRK {

// Something that can check itself before a run; `verify` throws when it is not usable.
class Verifiable {
public:
    virtual ~Verifiable();
    virtual void verify();
};

} // namespace VRK

#endif
