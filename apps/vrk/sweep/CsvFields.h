#ifndef VRK_APPS_VRK_SWEEP_CSVFIELDS_H
#define VRK_APPS_VRK_SWEEP_CSVFIELDS_H

#include "base/util/ScriptPosition.h"

#include <string>
#include <vector>

namespace Sweep {

// The fields of the comma-separated lines that sweeps read and write: a field may be
// double-quoted, with "" for a quote inside.
class CsvFields {
public:
    struct Field {
        std::string text;
        // Where the field starts on its line, from 1.
        int column;
    };

    // Throws a ParseError at the line of `where` and the column of a quote that the
    // line does not close.
    static std::vector<Field> split(const std::string& line, const VRK::ScriptPosition& where);
    // `text` as a field, quoted when it holds a comma, a quote or a line break.
    static std::string quote(const std::string& text);
    // `text` without the spaces and tabs around it.
    static std::string trim(const std::string& text);
};

} // namespace Sweep

#endif
