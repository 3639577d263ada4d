#include "apps/vrk/ConvertCommand.h"

#include "apps/host/DiagnosticPrinter.h"

#include "base/error/Exception.h"
#include "base/script/Script.h"
#include "base/script/ScriptFiles.h"

int ConvertCommand::run(const std::string& in, const std::string& out, std::ostream& err)
{
    DiagnosticPrinter diagnostics(err);
    std::shared_ptr<VRK::Script> script;
    try {
        // An extension that no writer takes is a mistake of the command line.
        VRK::ScriptFiles::createWriter(out);
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, out);
        return 2;
    }
    try {
        script = VRK::ScriptFiles::read(in);
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, in);
        return 2;
    }
    try {
        VRK::ScriptFiles::write(*script, out);
    } catch (const VRK::Exception& error) {
        diagnostics.print(error, out);
        return 1;
    }
    return 0;
}
