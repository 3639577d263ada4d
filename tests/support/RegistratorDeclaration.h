#ifndef VRK_TESTS_SUPPORT_REGISTRATORDECLARATION_H
#define VRK_TESTS_SUPPORT_REGISTRATORDECLARATION_H

#include "base/data/BaseType.h"
#include "base/graph/Functor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace VRK {
namespace Testing {

// What a registrator declares: its type, its description, and its input ports as
// "name type description", in order.
struct RegistratorDeclaration {
    const char* name;
    const char* type;
    const char* description;
    std::vector<std::string> ports;
};

// Expects `functor` to declare what `expected` says, with no optional input and no output.
inline void expectDeclared(const Functor& functor, const RegistratorDeclaration& expected)
{
    EXPECT_EQ(functor.getType()->getName(), expected.type);
    EXPECT_EQ(functor.getDescription(), expected.description);
    std::vector<std::string> ports;
    for (const auto& port : functor.getInputPorts()) {
        EXPECT_FALSE(port->isOptional()) << expected.name;
        ports.push_back(port->getName() + " " + port->getType()->getName() + " "
                        + port->getDescription());
    }
    EXPECT_EQ(ports, expected.ports);
    EXPECT_TRUE(functor.getOutputPorts().empty()) << expected.name;
}

} // namespace Testing
} // namespace VRK

#endif
