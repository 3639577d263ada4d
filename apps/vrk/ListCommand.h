#ifndef VRK_APPS_VRK_LISTCOMMAND_H
#define VRK_APPS_VRK_LISTCOMMAND_H

#include <ostream>
#include <string>

// `vrk list [functors|types|readers|writers|converters]`: what the plugins registered.
class ListCommand {
public:
    // `what` is empty for everything. Returns the exit status.
    static int run(const std::string& what, std::ostream& out);
};

#endif
