#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a fraction ("0.25") or, followed by "%", a percentage ("25%").
template <class ScannerT>
class PercentReader : public VRK::DataReader<ScannerT> {
public:
    explicit PercentReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    PercentReader(const PercentReader&) = delete;
    PercentReader& operator=(const PercentReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    // The number read, kept until it is known whether a "%" follows.
    double number_ = 0.0;
    bool percentage_ = false;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class PercentReader<VRK::ScriptScanner>;
extern template class PercentReader<VRK::PlainScanner>;

} // namespace Prim

#endif
