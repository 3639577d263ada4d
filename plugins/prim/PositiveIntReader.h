#ifndef PRIM_POSITIVEINTREADER_H
#define PRIM_POSITIVEINTREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a decimal integer; the editor refuses zero and negative ones.
template <class ScannerT>
class PositiveIntReader : public VRK::DataReader<ScannerT> {
public:
    explicit PositiveIntReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    PositiveIntReader(const PositiveIntReader&) = delete;
    PositiveIntReader& operator=(const PositiveIntReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class PositiveIntReader<VRK::ScriptScanner>;
extern template class PositiveIntReader<VRK::PlainScanner>;

} // namespace Prim

#endif
