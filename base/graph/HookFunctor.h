#ifndef VRK_BASE_GRAPH_HOOKFUNCTOR_H
#define VRK_BASE_GRAPH_HOOKFUNCTOR_H

#include "base/graph/Functor.h"

namespace VRK {

// A functor that registers values into its container's environment. The scheduler
// does not run hooks on their own: the container's consumer runs them and collects
// their values.
class HookFunctor : public Functor {
public:
    HookFunctor(std::string_view name, std::string_view description,
                const std::shared_ptr<BaseType>& type);
    ~HookFunctor() override;

    void resetInputPortData(bool feedback) override;
    void runImpl() override;

    // Clears what every input pulled, bound or typed in.
    void resetInputPortData2();
};

} // namespace VRK

#endif
