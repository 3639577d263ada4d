#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a non-empty set of integers between brackets, as "[ 1, 5, 7 ]";
// the commas between elements are optional. Each element goes to the editor as soon as
// it is read, so elements read before an error stay in the editor.
template <class ScannerT>
class IntSetReader : public VRK::DataReader<ScannerT> {
public:
    explicit IntSetReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    IntSetReader(const IntSetReader&) = delete;
    IntSetReader& operator=(const IntSetReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class IntSetReader<VRK::ScriptScanner>;
extern template class IntSetReader<VRK::PlainScanner>;

} // namespace Prim

#endif
