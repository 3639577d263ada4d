#include "apps/vrk/sweep/CsvFields.h"

#include "base/error/ExceptionUtils.h"
#include "base/parse/ParseError.h"

namespace Sweep {

std::vector<CsvFields::Field> CsvFields::split(const std::string& line,
                                               const VRK::ScriptPosition& where)
{
    std::vector<Field> fields{{"", 1}};
    bool quoted = false;
    size_t quoteAt = 0;
    for (size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted && c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
            fields.back().text += '"';
            ++i;
        } else if (c == '"' && (quoted || trim(fields.back().text).empty())) {
            quoted = !quoted;
            quoteAt = i;
            if (quoted)
                fields.back().text.clear();
        } else if (c == ',' && !quoted) {
            fields.push_back({"", static_cast<int>(i) + 2});
        } else {
            fields.back().text += c;
        }
    }
    if (quoted)
        VRK::ExceptionUtils::raiseAt<VRK::ParseError>(
            VRK::ScriptPosition{where.file, where.line, static_cast<int>(quoteAt) + 1},
            "The quoted value is not closed on its line.");
    return fields;
}

std::string CsvFields::quote(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (char c : text)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string CsvFields::trim(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t");
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

} // namespace Sweep
