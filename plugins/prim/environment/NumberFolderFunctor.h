#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERFOLDERFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERFOLDERFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"

namespace Prim {

// Names a folder with a number, for a series of folders.
class NumberFolder : public NumberBanneredHookFunctor {
public:
    NumberFolder();
    NumberFolder(const NumberFolder&) = default;
    NumberFolder& operator=(const NumberFolder&) = default;
    ~NumberFolder() override;

    std::string getBanner() const override;
};

} // namespace Prim

#endif
