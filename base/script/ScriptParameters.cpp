#include "base/script/ScriptParameters.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileNotFoundException.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/parse/ParseError.h"
#include "base/script/Script.h"
#include "base/script/ScriptBuilder.h"
#include "base/script/text/DefaultWizardReader.h"
#include "base/util/NameUtils.h"

#include <fstream>

namespace VRK {

const std::string ScriptParameters::AssignmentFile = "--set";

std::vector<WizardParameter> ScriptParameters::readFile(const std::string& filename)
{
    std::ifstream in(filename, std::ios::binary);
    if (!in)
        ExceptionUtils::raise<FileNotFoundException>("The parameters \"" + filename
                                                     + "\" cannot be opened.");
    DefaultWizardReader reader;
    reader.read(in, filename);
    return reader.getParameters();
}

WizardParameter ScriptParameters::parseAssignment(const std::string& assignment)
{
    const size_t equals = assignment.find('=');
    const size_t dot = assignment.find('.');
    WizardParameter parameter;
    if (equals != std::string::npos && dot < equals) {
        parameter.alias = assignment.substr(0, dot);
        parameter.port = assignment.substr(dot + 1, equals - dot - 1);
        parameter.value = assignment.substr(equals + 1);
        parameter.namePosition = ScriptPosition{AssignmentFile, 1, 1};
        parameter.position = ScriptPosition{AssignmentFile, 1, static_cast<int>(equals) + 2};
    }
    if (!NameUtils::isValidName(parameter.alias) || !NameUtils::isValidName(parameter.port))
        ExceptionUtils::raise<ParseError>("Expecting alias.port=VALUE, not \"" + assignment
                                          + "\".");
    return parameter;
}

void ScriptParameters::apply(Script& script, const std::vector<WizardParameter>& parameters)
{
    for (const auto& parameter : parameters)
        apply(script, parameter);
}

void ScriptParameters::apply(Script& script, const WizardParameter& parameter)
{
    const ScriptPosition& name =
        parameter.namePosition.isKnown() ? parameter.namePosition : parameter.position;
    Functor* functor = script.findFunctorByAlias(parameter.alias);
    if (!functor)
        ExceptionUtils::raiseAt<ParseError>(
            name, "The script has no functor aliased \"" + parameter.alias + "\".");
    InputPort& port = ScriptBuilder::findInput(*functor, parameter.port, name);
    if (port.isBound())
        ExceptionUtils::raiseAt<ParseError>(
            name, "The input \"" + port.getName() + "\" of " + FunctorNameUtils::describe(*functor)
                      + " is bound to an output: a parameter cannot set it.");
    ScriptBuilder::setValueText(port, parameter.value, parameter.position);
    // The command line is no file that a later diagnostic of the port could quote.
    if (parameter.position.isKnown() && parameter.position.file != AssignmentFile)
        port.setPosition(parameter.position);
}

} // namespace VRK
