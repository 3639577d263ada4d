#ifndef VRK_BASE_SCRIPT_SCRIPTPARAMETERS_H
#define VRK_BASE_SCRIPT_SCRIPTPARAMETERS_H

#include "base/script/WizardParameter.h"

#include <string>
#include <vector>

namespace VRK {

class Script;

// The modeller's parameters for a script, from a parameter file or the command line:
// each sets the typed-in value of an input of an aliased functor.
class ScriptParameters {
public:
    // Reads a parameter file with DefaultWizardReader.
    static std::vector<WizardParameter> readFile(const std::string& filename);
    // What the positions of an assignment name as their file: they count lines and
    // columns within the assignment's own text.
    static const std::string AssignmentFile;

    // "alias.port=VALUE" as given on the command line, placed in AssignmentFile.
    static WizardParameter parseAssignment(const std::string& assignment);

    // Sets each parameter's value, read by the plain-scanner reader of the input's type.
    // Throws a ParseError at the parameter's position when the alias, the input or the
    // value is wrong, or when the input is bound to an output in the script.
    static void apply(Script& script, const std::vector<WizardParameter>& parameters);
    static void apply(Script& script, const WizardParameter& parameter);
};

} // namespace VRK

#endif
