#ifndef VRK_BASE_SCRIPT_WIZARDPARAMETER_H
#define VRK_BASE_SCRIPT_WIZARDPARAMETER_H

#include "base/util/ScriptPosition.h"

#include <string>

namespace VRK {

// One line of a parameter file: the value text for the port of an aliased functor.
struct WizardParameter {
    std::string alias;
    std::string port;
    std::string value;
    // Where the value stands.
    ScriptPosition position;
    // Where "alias.port" stands; unknown where only the value's place is known.
    ScriptPosition namePosition;
};

} // namespace VRK

#endif
