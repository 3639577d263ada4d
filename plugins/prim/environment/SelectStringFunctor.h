#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTSTRINGFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTSTRINGFUNCTOR_H

#include "plugins/prim/environment/NumberedStringRegistratorType.h"
#include "plugins/prim/environment/SelectorFunctor.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Prim {

// Picks a string of a series, such as the name of a scenario, by step.
class SelectString : public SelectorFunctor<StringType, NumberedStringRegistratorType> {
public:
    SelectString();
    SelectString(const SelectString&) = default;
    ~SelectString() override;
};

} // namespace Prim

#endif
