#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultScriptWriter.h"
#include "fuzz/FuzzSetup.h"

#include <memory>
#include <sstream>

namespace {

std::shared_ptr<VRK::Script> readText(const std::string& text)
{
    auto script = std::make_shared<VRK::Script>();
    std::istringstream in(text);
    VRK::DefaultScriptReader().read(script.get(), in, "fuzz.vrk");
    return script;
}

std::string writeText(VRK::Script& script)
{
    std::ostringstream out;
    VRK::DefaultScriptWriter().write(&script, out, "fuzz.vrk");
    return out.str();
}

} // namespace

// A script that reads and writes must read back from what was written and write the
// same text again: the writer promises that nothing changes on the way.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fuzz::setUpOnce();
    std::shared_ptr<VRK::Script> script;
    std::string written;
    if (!Fuzz::acceptedBy([&] { script = readText(Fuzz::textOf(data, size)); }))
        return 0;
    if (!Fuzz::acceptedBy([&] { written = writeText(*script); }))
        return 0;
    std::shared_ptr<VRK::Script> again;
    try {
        again = readText(written);
    } catch (const VRK::Exception& error) {
        Fuzz::fail("the written script does not read back: " + error.getMessage() + "\n" + written);
    }
    const std::string rewritten = writeText(*again);
    if (rewritten != written)
        Fuzz::fail("the script changed on its way back:\n" + written + "\nbecame\n" + rewritten);
    return 0;
}
