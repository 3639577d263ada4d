#include "base/script/Script.h"
#include "base/script/ScriptParameters.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/script/text/DefaultWizardReader.h"
#include "fuzz/FuzzSetup.h"

#include <sstream>

namespace {

// A functor of each typed-in kind under a one-letter alias, and one input bound to an
// output, which a parameter may not set.
const char* const FixedScript = R"(b := Bool constant = .yes;
d := Double constant = 1.5;
f := Folder constant = "/tmp";
i := Int constant = -2;
s := IntSet constant = [1, 3];
l := LogTag constant = .info;
n := Name constant = "river";
z := NonNegativeInt constant = 0;
p := Path constant = "a/b.txt";
c := Percent constant = 25%;
q := PositiveInt constant = 4;
t := String constant = "text";
u := Double constant = d.object;
r := For firstIterationStep = 1 lastIterationStep = 3 {
    PrintValue value = r.step;
}
)";

// A fixed script that stopped reading would leave every input refused unseen.
void readFixedScript(VRK::Script& script)
{
    std::istringstream in(FixedScript);
    try {
        VRK::DefaultScriptReader().read(&script, in, "fixed.vrk");
    } catch (const VRK::Exception& error) {
        Fuzz::fail("the fixed script does not read: " + error.getMessage());
    }
}

void applyFile(const std::string& text)
{
    VRK::Script script;
    readFixedScript(script);
    VRK::DefaultWizardReader reader;
    std::istringstream in(text);
    reader.read(in, "fuzz.params");
    VRK::ScriptParameters::apply(script, reader.getParameters());
}

// As "--set" takes it: one argument, which holds no line break when typed at a shell.
void applyAssignment(const std::string& assignment)
{
    VRK::Script script;
    readFixedScript(script);
    VRK::ScriptParameters::apply(script, VRK::ScriptParameters::parseAssignment(assignment));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fuzz::setUpOnce();
    const std::string text = Fuzz::textOf(data, size);
    Fuzz::acceptedBy([&] { applyFile(text); });
    Fuzz::acceptedBy([&] { applyAssignment(text.substr(0, text.find('\n'))); });
    return 0;
}
