#ifndef VRK_APPS_VRK_DESCRIBECOMMAND_H
#define VRK_APPS_VRK_DESCRIBECOMMAND_H

#include <ostream>
#include <string>

// `vrk describe NAME`: a functor's ports with direction, type, whether optional, the
// default value, the description and the aliases.
class DescribeCommand {
public:
    // Returns the exit status: 2 when no functor has that name or alias.
    static int run(const std::string& name, std::ostream& out, std::ostream& err);
};

#endif
