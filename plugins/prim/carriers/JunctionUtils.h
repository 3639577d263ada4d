#ifndef VRK_PLUGINS_PRIM_CARRIERS_JUNCTIONUTILS_H
#define VRK_PLUGINS_PRIM_CARRIERS_JUNCTIONUTILS_H

#include "base/graph/Functor.h"

#include <memory>
#include <string>

namespace Prim {

// What the junctions share: two alternative inputs and one output of one type. Of two
// alternative pipelines, the one that produced data is forwarded; the first wins when
// both did, and nothing happens when neither did (a consumer of the output then
// reports the missing data).
class JunctionUtils {
public:
    // The names and descriptions of a junction's ports.
    struct Ports {
        const char* first;
        const char* second;
        const char* output;
        const char* inputDescription;
        const char* outputDescription;
    };

    // Gives `junction` its ports, all of `type`, and sets the functor flag 4 that every
    // junction carries.
    static void addPorts(VRK::Functor& junction, const Ports& ports,
                         const std::shared_ptr<VRK::BaseType>& type);

    template <class DataT>
    static void forward(VRK::Functor& junction, const Ports& ports)
    {
        if (forwardIfSet<DataT>(junction, ports.first, ports.output))
            logForwarded(junction, "first");
        else if (forwardIfSet<DataT>(junction, ports.second, ports.output))
            logForwarded(junction, "second");
    }

private:
    template <class DataT>
    static bool forwardIfSet(VRK::Functor& junction, const std::string& input,
                             const std::string& output)
    {
        VRK::InputPort* port = junction.getInputPort(input);
        assert(port != 0 && "port != 0");
        if (!port->hasData())
            return false;
        junction.setOutputPortValue<DataT>(output, junction.getInputPortValue<DataT>(input));
        return true;
    }

    static void logForwarded(const VRK::Functor& junction, const char* which);
};

} // namespace Prim

#endif
