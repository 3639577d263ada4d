#ifndef VRK_BASE_SCRIPT_SCRIPTTEXTINPUT_H
#define VRK_BASE_SCRIPT_SCRIPTTEXTINPUT_H

#include <istream>
#include <string>

namespace VRK {

// Takes in the text of a script or a parameter file from a stream, as its readers parse
// it: a UTF-8 byte-order mark at its head is dropped, so that the first line counts its
// columns from its first character.
class ScriptTextInput {
public:
    // Everything left in `in`. Throws a FileException "`description` cannot be read: ..."
    // when the stream fails (a folder, a device that refuses to be read) or the text
    // does not fit in memory.
    static std::string readAll(std::istream& in, const std::string& description);
    // Drops a UTF-8 byte-order mark at the head of `text`, for readers that take in their
    // text line by line.
    static void dropByteOrderMark(std::string& text);
};

} // namespace VRK

#endif
