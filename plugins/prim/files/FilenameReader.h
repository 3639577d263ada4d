#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEREADER_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEREADER_H

#include "plugins/prim/values/texts/QuotedTextReader.h"

#include <string>

namespace Prim {

// Reads a filename between double quotes into a filename editor; backslashes are path
// separators, not escapes. The filename is only recorded here: it is resolved against
// the work directory once the script around it is complete.
template <class ScannerT>
class FilenameReader : public QuotedTextReader<ScannerT> {
public:
    // `item` names what is expected in the message of a text that does not read
    // ("Expecting " + item + " enclosed by '\"'.").
    FilenameReader(VRK::DataEditor* dataEditor, const std::string& item);
};

extern template class FilenameReader<VRK::ScriptScanner>;
extern template class FilenameReader<VRK::PlainScanner>;

} // namespace Prim

#endif
