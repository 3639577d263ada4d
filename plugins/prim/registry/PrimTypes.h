#ifndef VRK_PLUGINS_PRIM_REGISTRY_PRIMTYPES_H
#define VRK_PLUGINS_PRIM_REGISTRY_PRIMTYPES_H

namespace Prim {

// The plugin's types as a whole.
class PrimTypes {
public:
    // Creates the singleton of every type, so that the host can list them all before
    // any script names one.
    static void instantiateAll();
};

} // namespace Prim

#endif
