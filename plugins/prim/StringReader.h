#ifndef PRIM_STRINGREADER_H
#define PRIM_STRINGREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a string between double quotes, in which a backslash protects the
// character after it. Only backslash-quote is turned back into a quote; every other
// backslash stays in the string as it was written.
template <class ScannerT>
class StringReader : public VRK::DataReader<ScannerT> {
public:
    explicit StringReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    StringReader(const StringReader&) = delete;
    StringReader& operator=(const StringReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    // The text between the quotes, as written.
    std::string text_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class StringReader<VRK::ScriptScanner>;
extern template class StringReader<VRK::PlainScanner>;

} // namespace Prim

#endif
