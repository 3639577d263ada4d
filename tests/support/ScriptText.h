#ifndef VRK_TESTS_SUPPORT_SCRIPTTEXT_H
#define VRK_TESTS_SUPPORT_SCRIPTTEXT_H

#include "base/script/Script.h"

#include <memory>
#include <sstream>
#include <string>

namespace VRK {
namespace Testing {

// Reads `text` with a fresh ReaderT into a new script, as a file named `filename`.
template <class ReaderT>
std::shared_ptr<Script> readScriptText(const std::string& text, const std::string& filename)
{
    auto script = std::make_shared<Script>();
    std::istringstream in(text);
    ReaderT().read(script.get(), in, filename);
    return script;
}

// What a fresh WriterT writes of `script` to a file named `filename`.
template <class WriterT> std::string writeScriptText(Script& script, const std::string& filename)
{
    std::ostringstream out;
    WriterT().write(&script, out, filename);
    return out.str();
}

} // namespace Testing
} // namespace VRK

#endif
