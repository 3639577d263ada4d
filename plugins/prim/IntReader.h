#ifndef PRIM_INTREADER_H
#define PRIM_INTREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a decimal integer that fits in 32 signed bits.
template <class ScannerT>
class IntReader : public VRK::DataReader<ScannerT> {
public:
    explicit IntReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    IntReader(const IntReader&) = delete;
    IntReader& operator=(const IntReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class IntReader<VRK::ScriptScanner>;
extern template class IntReader<VRK::PlainScanner>;

} // namespace Prim

#endif
