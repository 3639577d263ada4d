#ifndef VRK_APPS_VRK_CHECKCOMMAND_H
#define VRK_APPS_VRK_CHECKCOMMAND_H

#include <ostream>
#include <string>

// `vrk check SCRIPT`: reads the script and verifies it; runs nothing.
class CheckCommand {
public:
    // Returns the exit status: 0 when the script is valid, 2 when it is not (the
    // diagnostic goes to `err`).
    static int run(const std::string& script, std::ostream& out, std::ostream& err);
};

#endif
