#include "base/util/QuotedText.h"

#include <cassert>

namespace VRK {

std::string QuotedText::quote(const std::string& text)
{
    std::string quoted = "\"";
    for (char c : text) {
        switch (c) {
        case '"': quoted += "\\\""; break;
        case '\\': quoted += "\\\\"; break;
        case '\n': quoted += "\\n"; break;
        case '\t': quoted += "\\t"; break;
        default: quoted += c;
        }
    }
    return quoted + "\"";
}

std::string QuotedText::unquote(const std::string& quoted)
{
    assert(quoted.size() >= 2 && "the quoted text includes both its quotes");
    const size_t end = quoted.size() - 1;
    std::string text;
    for (size_t i = 1; i < end; ++i) {
        const char next = i + 1 < end ? quoted[i + 1] : '\0';
        if (quoted[i] == '\\' && (next == '"' || next == '\\' || next == 'n' || next == 't')) {
            text += next == 'n' ? '\n' : next == 't' ? '\t' : next;
            ++i;
        } else {
            text += quoted[i];
        }
    }
    return text;
}

} // namespace VRK
