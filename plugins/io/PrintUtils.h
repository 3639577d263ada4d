#ifndef VRK_PLUGINS_IO_PRINTUTILS_H
#define VRK_PLUGINS_IO_PRINTUTILS_H

#include "base/graph/Functor.h"

#include <functional>
#include <memory>
#include <string>

namespace Io {

// What the print functors share: one required input to print, an optional "label"
// written before it, and one line at ".result".
class PrintUtils {
public:
    // Gives `printer` its required `input` of `type` and its optional "label".
    static void addPorts(VRK::Functor& printer, const std::string& input,
                         const std::string& inputDescription,
                         const std::shared_ptr<VRK::BaseType>& type,
                         const std::string& labelDescription);

    // Logs the label followed by `text()` at ".result"; neither is fetched when that
    // tag is not logged.
    static void logLabelled(const VRK::Functor& printer, const std::function<std::string()>& text);
};

} // namespace Io

#endif
