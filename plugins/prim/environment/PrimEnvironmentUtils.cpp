#include "plugins/prim/environment/PrimEnvironmentUtils.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/graph/EnvironmentUtils.h"
#include "base/log/Logger.h"
#include "base/util/Singleton.h"
#include "plugins/prim/environment/NamedValueRegistratorType.h"
#include "plugins/prim/environment/NumberedValueRegistratorType.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/texts/StringData.h"

#include <sstream>

namespace Prim {

namespace {

const char* const ValuePort = "value";
const char* const NumberPort = "valueNumber";
const char* const NamePort = "valueName";

[[noreturn]] void raiseIndexGap(int index, int expected)
{
    VRK::ExceptionUtils::raise<VRK::Exception>(
        "Index " + std::to_string(index) + " used by expression must be changed to "
        + std::to_string(expected) + ". Map, table and value indexes must be sequential.");
}

void logEntities(const std::vector<double>& values)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    logger->log(VRK::debug, "User registered entities:", false);
    for (size_t position = 1; position <= values.size(); ++position) {
        std::ostringstream line;
        line << "==[ \"" << position << "\" ]== " << values[position - 1];
        logger->log(VRK::debug, line.str(), false);
    }
}

} // namespace

void PrimEnvironmentUtils::registerValuesInEnvironment(std::map<int, double>& env,
                                                       const VRK::ContainerFunctor& container)
{
    VRK::EnvironmentUtils::registerAllHooksInEnvironment<IntData, DoubleData>(
        env, container, NumberPort, ValuePort,
        VRK::Singleton<NumberedValueRegistratorType>::getInstance(),
        VRK::EnvironmentUtils::SameKey());
}

void PrimEnvironmentUtils::registerValuesInEnvironment(std::map<std::string, double>& env,
                                                       const VRK::ContainerFunctor& container)
{
    VRK::EnvironmentUtils::registerAllHooksInEnvironment<StringData, DoubleData>(
        env, container, NamePort, ValuePort,
        VRK::Singleton<NamedValueRegistratorType>::getInstance(), VRK::EnvironmentUtils::SameKey());
}

void PrimEnvironmentUtils::registerValuesInEnvironment2(std::map<std::string, double>& env,
                                                        const VRK::ContainerFunctor& container)
{
    VRK::EnvironmentUtils::registerAllHooksInEnvironment<IntData, DoubleData>(
        env, container, NumberPort, ValuePort,
        VRK::Singleton<NumberedValueRegistratorType>::getInstance(),
        [](int number) { return "v" + std::to_string(number); });
}

void PrimEnvironmentUtils::checkNumbersAreSequential(const std::set<int>& indexes,
                                                     const std::function<int(int)>& numberOf)
{
    std::set<int> numbers;
    for (int index : indexes)
        if (const int number = numberOf(index))
            numbers.insert(number);
    int expected = 1;
    for (int number : numbers)
        if (number != expected++)
            raiseIndexGap(number, expected - 1);
}

void PrimEnvironmentUtils::flattenValueEnvironment(
    std::vector<double>& out, const std::map<std::string, double>& env,
    const std::set<int>& indexes, const std::function<std::string(int)>& variableName)
{
    for (int index : indexes) {
        const std::string name = variableName(index);
        const auto found = env.find(name);
        if (found == env.end())
            VRK::ExceptionUtils::raise<VRK::Exception>("Undefined key \"" + name
                                                       + "\" used by expression.");
        if (size_t(index) != out.size() + 1)
            raiseIndexGap(index, int(out.size()) + 1);
        out.push_back(found->second);
    }
    logEntities(out);
}

void PrimEnvironmentUtils::flattenValueEnvironment(
    std::vector<double>& out, const std::map<std::string, double>& env,
    const Tessaly::ImageExpression& expression,
    const Tessaly::ImageExpressionDictionary& dictionary)
{
    std::set<int> indexes;
    expression.getValueDependencies(indexes);
    checkNumbersAreSequential(indexes, [&](int index) {
        return dictionary.getNumber(Tessaly::EntityKind::Value, index);
    });
    flattenValueEnvironment(out, env, indexes,
                            [&](int index) { return dictionary.getVariableName(index); });
}

} // namespace Prim
