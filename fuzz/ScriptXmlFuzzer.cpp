#include "base/script/Script.h"
#include "base/script/xml/XMLScriptReader.h"
#include "fuzz/FuzzSetup.h"

#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fuzz::setUpOnce();
    Fuzz::acceptedBy([&] {
        VRK::Script script;
        std::istringstream in(Fuzz::textOf(data, size));
        VRK::XMLScriptReader().read(&script, in, "fuzz.xml");
    });
    return 0;
}
