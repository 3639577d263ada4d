#ifndef VRK_TESTS_BASE_SCRIPTTESTKIT_H
#define VRK_TESTS_BASE_SCRIPTTESTKIT_H

// Small types, value readers and writers and functors, registered in the factory farm
// under names beginning with "Test", so that the host's script machinery can be tested
// without any plugin.
//
// Types: TestReal (double), TestNumber (int >= 0, child of TestReal), TestText
// (string), Workdir (no editor). Functors:
//   TestSource      constant: TestNumber              -> object: TestNumber
//   TestRealSource  constant: TestReal                -> object: TestReal
//   TestTextSource  constant: TestText                -> object: TestText
//   TestSink        value: TestReal, label: TestText (optional, alias "title")
//                                                     -> result: TestReal
//   TestMux         initial: TestReal (alias "first"), feedback (feedback strong)
//                                                     -> value: TestReal
//   TestJunction    possible1, possible2 (strong)     -> value: TestReal
//   TestFiler       workdir: Workdir
//   TestBox         container; count: TestNumber (optional); internal output "step",
//                   internal input "condition" (TestNumber); refuses TestRefused
//   TestWorkdir     container; internal output "workdir" (Workdir)
//   TestRefused     no ports
//   TestPrepared    no ports; its verify fails unless it was prepared
// "TestBlock" is an alias of "TestBox".

#include "base/script/Script.h"

#include <memory>
#include <string>

namespace VRK {
namespace Testing {

// Registers everything once per process.
void registerScriptTestKit();

// Reads `text` as a ".vrk" script named "test.vrk".
std::shared_ptr<VRK::Script> readText(const std::string& text);
// Writes with the default text writer.
std::string writeText(VRK::Script& script);

} // namespace Testing
} // namespace VRK

#endif
