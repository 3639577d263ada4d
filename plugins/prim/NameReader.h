#ifndef PRIM_NAMEREADER_H
#define PRIM_NAMEREADER_H

#include "base/DataReader.h"
#include "base/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a name between double quotes; a name holds no double quote.
template <class ScannerT>
class NameReader : public VRK::DataReader<ScannerT> {
public:
    explicit NameReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    NameReader(const NameReader&) = delete;
    NameReader& operator=(const NameReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    // The text between the quotes.
    std::string text_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class NameReader<VRK::ScriptScanner>;
extern template class NameReader<VRK::PlainScanner>;

} // namespace Prim

#endif
