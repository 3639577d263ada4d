#ifndef PRIM_DOUBLEREADER_H
#define PRIM_DOUBLEREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a real number in the usual decimal notation, with an optional exponent.
template <class ScannerT>
class DoubleReader : public VRK::DataReader<ScannerT> {
public:
    explicit DoubleReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    DoubleReader(const DoubleReader&) = delete;
    DoubleReader& operator=(const DoubleReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class DoubleReader<VRK::ScriptScanner>;
extern template class DoubleReader<VRK::PlainScanner>;

} // namespace Prim

#endif
