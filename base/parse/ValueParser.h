#ifndef VRK_BASE_PARSE_VALUEPARSER_H
#define VRK_BASE_PARSE_VALUEPARSER_H

#include <string>

namespace VRK {

class DataEditor;

// Reads one value, written in its script syntax, from a string of its own: the values
// of XML scripts, of "--set alias.port=VALUE" on the command line and of parameter
// files. The reader is the one registered for the type under the plain scanner
// (PlainScannerName); its actions call the editor's setters, so on success the editor's
// working value holds the value read. Packing it into the editor's data is left to
// the caller (DataEditor::packData), as for values read from script text.
//
// Throws a ParseError when the text is not a value of the type, when the editor refuses
// the value, or when anything but white space follows the value ("Unexpected text after
// the value."). Its position has an empty file name and the line and column of the
// offending character within `text`, both counted from 1. Throws the factory's
// FactoryError when no plain-scanner reader is registered under the type name.
//
// A refused or partly read value may already have changed the editor (a set of
// integers keeps the elements read before the error), as with script text.
class ValueParser {
public:
    // The reader is chosen by the editor's type name.
    static void read(DataEditor* editor, const std::string& text);
    // The reader is chosen by `typeName`, for editors that serve several types.
    static void read(DataEditor* editor, const std::string& typeName, const std::string& text);
};

} // namespace VRK

#endif
