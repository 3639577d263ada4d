#ifndef VRK_PLUGINS_PRIM_FLOW_CONTROLLOG_H
#define VRK_PLUGINS_PRIM_FLOW_CONTROLLOG_H

#include "base/log/LogTag.h"
#include "base/log/Logger.h"

#include <sstream>

namespace Prim {

// The log lines of the control-flow functors: written to the current thread's logger,
// only when it keeps the tag, through a stream of precision 20. A line is composed only
// when it will be kept, so that loops pay nothing per pass for hidden lines.
class ControlLog {
public:
    // Whether the current thread's logger keeps lines of `tag`.
    static bool isShown(VRK::LogTag tag)
    {
        return VRK::Logger::getCurrentThreadLogger()->isLogging(tag);
    }

    // `write` puts the line into the stream it is given.
    template <class Writer>
    static void log(VRK::LogTag tag, Writer write)
    {
        if (!isShown(tag))
            return;
        VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
        std::ostringstream line;
        line.precision(20);
        write(line);
        logger->log(tag, line.str(), false);
    }

    // Brackets one run of a block's contents, `step`, with "<name>: Running single
    // step:" and "<name>: Single step completed successfully.". A failure of the step
    // leaves out the second line.
    template <class Step>
    static void singleStep(const char* name, Step step)
    {
        log(VRK::debug, [&](std::ostream& line) { line << name << ": Running single step:"; });
        step();
        log(VRK::debug,
            [&](std::ostream& line) { line << name << ": Single step completed successfully."; });
    }
};

} // namespace Prim

#endif
