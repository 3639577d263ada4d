#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLREADER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads ".yes" or ".true" as true, ".no" or ".false" as false.
template <class ScannerT>
class BoolReader : public VRK::DataReader<ScannerT> {
public:
    explicit BoolReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    BoolReader(const BoolReader&) = delete;
    BoolReader& operator=(const BoolReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class BoolReader<VRK::ScriptScanner>;
extern template class BoolReader<VRK::PlainScanner>;

} // namespace Prim

#endif
