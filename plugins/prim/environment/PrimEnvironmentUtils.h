#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_PRIMENVIRONMENTUTILS_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_PRIMENVIRONMENTUTILS_H

#include "base/graph/ContainerFunctor.h"
#include "tessaly/images/ImageExpression.h"
#include "tessaly/images/ImageExpressionDictionary.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Prim {

// The value environments of a container, gathered from the registrators inside it.
// A key registered twice fails with "The key "..." is already in use by another hook
// functor."; the first registration is the one kept.
class PrimEnvironmentUtils {
public:
    // Every NumberValue directly inside: "valueNumber" to "value".
    static void registerValuesInEnvironment(std::map<int, double>& env,
                                            const VRK::ContainerFunctor& container);
    // Every NameValue directly inside: "valueName" to "value".
    static void registerValuesInEnvironment(std::map<std::string, double>& env,
                                            const VRK::ContainerFunctor& container);
    // Every NumberValue directly inside, under "v" and its number ("v1", "v2" ...), so
    // that numbered and named values can share one map.
    static void registerValuesInEnvironment2(std::map<std::string, double>& env,
                                             const VRK::ContainerFunctor& container);

    // Appends to `out` the value of each index in `indexes`, ascending, found in `env`
    // under the name `variableName` gives it: the dense vector that a compiled formula
    // reads, value i at position i - 1. The indexes must run 1, 2, 3 ... without a gap.
    static void flattenValueEnvironment(std::vector<double>& out,
                                        const std::map<std::string, double>& env,
                                        const std::set<int>& indexes,
                                        const std::function<std::string(int)>& variableName);
    // Refuses, with the index message, numbers (by index, 0 for an entity named by
    // name) that do not run 1, 2, 3 ...: the first gap names the number to use instead.
    static void checkNumbersAreSequential(const std::set<int>& indexes,
                                          const std::function<int(int)>& numberOf);
    // The same for the values that `expression` uses, named by `dictionary`; the
    // numbers of the values named by number must run 1, 2, 3 ...
    static void flattenValueEnvironment(std::vector<double>& out,
                                        const std::map<std::string, double>& env,
                                        const Tessaly::ImageExpression& expression,
                                        const Tessaly::ImageExpressionDictionary& dictionary);
};

} // namespace Prim

#endif
