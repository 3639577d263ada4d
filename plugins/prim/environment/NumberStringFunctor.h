#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERSTRINGFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_NUMBERSTRINGFUNCTOR_H

#include "plugins/prim/environment/NumberBanneredHookFunctor.h"
#include "plugins/prim/environment/NumberedStringRegistratorType.h"
#include "plugins/prim/environment/RegistratorFunctor.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

// Names a string with a number, for the container's numbered strings.
class NumberString
    : public RegistratorFunctor<NumberBanneredHookFunctor, StringType,
                                NumberedStringRegistratorType, &RegistratorBanner::stringValue> {
public:
    NumberString();
    ~NumberString() override;
};

} // namespace Prim

#endif
