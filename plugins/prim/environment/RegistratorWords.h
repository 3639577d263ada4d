#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORWORDS_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORWORDS_H

#include <string>

namespace Prim {

// What one registrator functor is called, what its box shows before the key, and how it
// names its two ports. All follow from the thing it registers ("map"), the name of its
// value port ("map") and whether its key is a number or a name: a numbered map
// registrator says "Any map." and "Map number identifier.", a named one "Map." and
// "Map name identifier.", and only numbered ones start their box with "Map ".
class RegistratorWords {
public:
    RegistratorWords(const char* name, const char* thing, const char* valuePort, bool numbered);

    std::string name;
    std::string description;
    std::string bannerPrefix;
    std::string valuePort;
    std::string valueDescription;
    std::string keyPort;
    std::string keyDescription;
};

} // namespace Prim

#endif
