#include "apps/vrk/CheckCommand.h"

#include "apps/host/DiagnosticPrinter.h"

#include "base/error/Exception.h"
#include "base/script/Script.h"
#include "base/script/ScriptFiles.h"
#include "base/verify/NonIntrusiveScriptVerifier.h"

int CheckCommand::run(const std::string& script, std::ostream& out, std::ostream& err)
{
    DiagnosticPrinter diagnostics(err);
    try {
        std::shared_ptr<VRK::Script> read = VRK::ScriptFiles::read(script);
        diagnostics.addSource(script, read->getSource());
        VRK::NonIntrusiveScriptVerifier().verify(read.get());
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, script);
        return 2;
    }
    out << script << ": the script is valid.\n";
    return 0;
}
