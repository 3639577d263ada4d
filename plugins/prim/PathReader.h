#ifndef PRIM_PATHREADER_H
#define PRIM_PATHREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a file path between double quotes; backslashes are path separators,
// not escapes.
template <class ScannerT>
class PathReader : public VRK::DataReader<ScannerT> {
public:
    explicit PathReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    PathReader(const PathReader&) = delete;
    PathReader& operator=(const PathReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    // The text between the quotes.
    std::string text_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class PathReader<VRK::ScriptScanner>;
extern template class PathReader<VRK::PlainScanner>;

} // namespace Prim

#endif
