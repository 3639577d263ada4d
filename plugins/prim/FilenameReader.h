#ifndef PRIM_FILENAMEREADER_H
#define PRIM_FILENAMEREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a filename between double quotes into a filename editor; backslashes are path
// separators, not escapes. The filename is only recorded here: it is resolved against
// the work directory once the script around it is complete.
template <class ScannerT>
class FilenameReader : public VRK::DataReader<ScannerT> {
public:
    // `item` names what is expected in the message of a text that does not read
    // ("Expecting " + item + " enclosed by '\"'.").
    FilenameReader(VRK::DataEditor* dataEditor, const std::string& item);
    // The grammar's actions point into this reader.
    FilenameReader(const FilenameReader&) = delete;
    FilenameReader& operator=(const FilenameReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    // The text between the quotes.
    std::string text_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class FilenameReader<VRK::ScriptScanner>;
extern template class FilenameReader<VRK::PlainScanner>;

} // namespace Prim

#endif
