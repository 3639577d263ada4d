#ifndef VRK_APPS_VRK_CONVERTCOMMAND_H
#define VRK_APPS_VRK_CONVERTCOMMAND_H

#include <ostream>
#include <string>

// `vrk convert IN OUT`: reads a script in the format of IN's extension and writes it
// in the format of OUT's (".vrk", ".xml", ".dot"), through a temporary file and a
// rename, so that a failure leaves an existing OUT untouched.
class ConvertCommand {
public:
    // Returns the exit status: 2 when IN cannot be read as a script or no writer takes
    // OUT's extension, 1 when OUT cannot be written.
    static int run(const std::string& in, const std::string& out, std::ostream& err);
};

#endif
