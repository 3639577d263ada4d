#include "plugins/prim/environment/StringFormat.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"

#include <cstdlib>
#include <sstream>

namespace Prim {

namespace {

bool isSeparator(char c) { return c == '\\' || c == '<' || c == '>'; }

std::vector<std::string> splitFields(const std::string& contents)
{
    std::vector<std::string> fields;
    std::istringstream in(contents);
    std::string field;
    while (std::getline(in, field, ','))
        fields.push_back(field);
    return fields;
}

StringFormat::Piece literal(const std::string& text)
{
    StringFormat::Piece piece;
    piece.text = text;
    return piece;
}

} // namespace

StringFormat::StringFormat(const std::string& format)
{
    const std::vector<std::string> tokens = tokenize(format);
    bool escaped = false;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i] == "\\") {
            escaped = true;
            continue;
        }
        if (tokens[i] == "<" && !escaped) {
            if (i + 1 == tokens.size())
                VRK::ExceptionUtils::raise<VRK::Exception>(
                    "The format \"" + format + "\" ends with \"<\" instead of a placeholder.");
            pieces_.push_back(parsePlaceholder(tokens[i + 1]));
            i += 2;
        } else {
            pieces_.push_back(literal(tokens[i]));
        }
        escaped = false;
    }
}

std::vector<std::string> StringFormat::tokenize(const std::string& format)
{
    std::vector<std::string> tokens;
    std::string run;
    for (char c : format) {
        if (!isSeparator(c)) {
            run += c;
            continue;
        }
        if (!run.empty())
            tokens.push_back(run);
        run.clear();
        tokens.emplace_back(1, c);
    }
    if (!run.empty())
        tokens.push_back(run);
    return tokens;
}

// The index, width and precision are read as atoi reads them: leading non-digits give 0.
StringFormat::Piece StringFormat::parsePlaceholder(const std::string& contents)
{
    const char type = contents[0];
    if (type != 's' && type != 'v')
        VRK::ExceptionUtils::raise<VRK::Exception>(std::string("Invalid token type '") + type
                                                   + "' in \"<" + contents
                                                   + ">\", type must be string (s) or number (n).");
    const std::vector<std::string> fields = splitFields(contents);
    Piece piece;
    piece.isPlaceholder = 1;
    piece.isValue = type == 'v';
    piece.index = std::atoi(fields[0].c_str() + 1);
    if (fields.size() > 1)
        piece.width = std::atoi(fields[1].c_str());
    if (fields.size() > 2)
        piece.precision = std::atoi(fields[2].c_str());
    return piece;
}

std::string StringFormat::build(const std::map<int, double>& values,
                                const std::map<int, std::string>& strings) const
{
    std::string result;
    for (const Piece& piece : pieces_) {
        if (!piece.isPlaceholder) {
            result += piece.text;
        } else if (piece.isValue) {
            const auto value = values.find(piece.index);
            if (value == values.end())
                VRK::ExceptionUtils::raise<VRK::Exception>(
                    "Not enough numbered values for custom string.");
            result += formatValue(piece, value->second);
        } else {
            const auto text = strings.find(piece.index);
            if (text == strings.end())
                VRK::ExceptionUtils::raise<VRK::Exception>(
                    "Not enough numbered strings for custom string.");
            result += text->second;
        }
    }
    return result;
}

std::string StringFormat::formatValue(const Piece& piece, double value)
{
    std::ostringstream text;
    text.fill('0');
    text.width(piece.width);
    text.precision(piece.precision);
    text << value;
    return text.str();
}

} // namespace Prim
