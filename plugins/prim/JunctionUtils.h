#ifndef PRIM_JUNCTIONUTILS_H
#define PRIM_JUNCTIONUTILS_H

#include "base/Functor.h"

#include <string>

namespace Prim {

// The run shared by the junctions: of two alternative pipelines, the one that produced
// data is forwarded; the first wins when both did, and nothing happens when neither did
// (a consumer of the output then reports the missing data).
class JunctionUtils {
public:
    template <class DataT>
    static void forward(VRK::Functor& junction, const std::string& first, const std::string& second,
                        const std::string& output)
    {
        if (forwardIfSet<DataT>(junction, first, output))
            logForwarded(junction, "first");
        else if (forwardIfSet<DataT>(junction, second, output))
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
