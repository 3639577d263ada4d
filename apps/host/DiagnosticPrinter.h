#ifndef VRK_APPS_HOST_DIAGNOSTICPRINTER_H
#define VRK_APPS_HOST_DIAGNOSTICPRINTER_H

#include "base/util/LineBuffer.h"
#include "base/util/ScriptPosition.h"

#include <map>
#include <ostream>
#include <string>

class HostError;

namespace VRK {
class Exception;
}

// Prints errors as the command line reports them: "FILE:LINE:COLUMN: error: MESSAGE",
// then the line of the file and a caret under the column. An error without a position
// is reported against the file it concerns, or the program when there is none. What
// comes from the user's files is shown printable (see PrintableText), and a long line
// only around the column.
class DiagnosticPrinter {
public:
    explicit DiagnosticPrinter(std::ostream& out);

    // The text of `filename` as it was read; files not given are read again when an
    // error quotes them.
    void addSource(const std::string& filename, const VRK::LineBuffer& source);

    // `file` is named when the error carries no position of its own.
    void print(const VRK::Exception& error, const std::string& file = std::string());
    void print(const HostError& error);
    void print(const std::string& message, const VRK::ScriptPosition& position);

private:
    void quote(const VRK::ScriptPosition& position);
    const VRK::LineBuffer& sourceOf(const std::string& filename);

    std::ostream& out_;
    std::map<std::string, VRK::LineBuffer> sources_;
};

#endif
