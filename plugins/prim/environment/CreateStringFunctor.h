#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_CREATESTRINGFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_CREATESTRINGFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

#include <map>
#include <string>

namespace Prim {

// Builds "result" from "format", filling its placeholders with the numbered values and
// strings of the NumberValue and NumberString functors inside it (see StringFormat).
class CreateString : public VRK::ContainerFunctor {
public:
    CreateString();
    CreateString(const CreateString&) = default;
    ~CreateString() override;

    // A format that the script fixes is parsed before the run, so that a bad
    // placeholder is reported before anything runs.
    void verify() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;

private:
    // Of two registrators with one number, the later in the container wins.
    void collect(std::map<int, double>& values, std::map<int, std::string>& strings) const;
};

} // namespace Prim

#endif
