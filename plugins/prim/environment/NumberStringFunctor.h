#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERSTRINGFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERSTRINGFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

namespace Prim {

// Names a string with a number, for the container's numbered strings.
class NumberString : public NumberBanneredHookFunctor {
public:
    NumberString();
    NumberString(const NumberString&) = default;
    NumberString& operator=(const NumberString&) = default;
    ~NumberString() override;

    std::string getBanner() const override;
};

} // namespace Prim

#endif
