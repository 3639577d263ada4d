#ifndef PRIM_NONNEGATIVEINTREADER_H
#define PRIM_NONNEGATIVEINTREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a decimal integer; the editor refuses negative ones.
template <class ScannerT>
class NonNegativeIntReader : public VRK::DataReader<ScannerT> {
public:
    explicit NonNegativeIntReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    NonNegativeIntReader(const NonNegativeIntReader&) = delete;
    NonNegativeIntReader& operator=(const NonNegativeIntReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class NonNegativeIntReader<VRK::ScriptScanner>;
extern template class NonNegativeIntReader<VRK::PlainScanner>;

} // namespace Prim

#endif
