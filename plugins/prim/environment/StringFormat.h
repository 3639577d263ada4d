#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_STRINGFORMAT_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_STRINGFORMAT_H

#include <map>
#include <string>
#include <vector>

namespace Prim {

// The format of CreateString: literal text with placeholders for numbered values,
// "<v1>", "<v2,4>" (zero-padded to 4 characters), "<v3,0,3>" (3 significant digits),
// and numbered strings, "<s1>". A backslash makes the next token literal and never
// appears in the result itself. The token after a placeholder's contents closes it
// unexamined, so "<v1]" reads as "<v1>" and a missing ">" is not noticed.
class StringFormat {
public:
    struct Piece {
        int isValue = 0;
        int isPlaceholder = 0;
        int index = 0;
        int width = 0;
        int precision = 6;
        // The literal text; empty for a placeholder.
        std::string text;
    };

    // Parses `format`; a placeholder of a type other than "s" or "v" is an error.
    explicit StringFormat(const std::string& format);

    const std::vector<Piece>& getPieces() const { return pieces_; }

    // The text with every placeholder filled in from `values` and `strings`, by number;
    // a number that neither holds is an error.
    std::string build(const std::map<int, double>& values,
                      const std::map<int, std::string>& strings) const;

    // The format cut into tokens: "\", "<" and ">" each on its own, every other run of
    // characters as one token.
    static std::vector<std::string> tokenize(const std::string& format);

private:
    static Piece parsePlaceholder(const std::string& contents);
    static std::string formatValue(const Piece& piece, double value);

    std::vector<Piece> pieces_;
};

} // namespace Prim

#endif
