#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGREADER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Reads a log level keyword. The keywords are tried in a fixed order and
// the first one the text begins with wins, so ".info2" reads as ".info" and leaves
// "2" unread, and ".debug2" as ".debug".
template <class ScannerT>
class LogTagReader : public VRK::DataReader<ScannerT> {
public:
    explicit LogTagReader(VRK::DataEditor* dataEditor);
    // The grammar's actions point into this reader.
    LogTagReader(const LogTagReader&) = delete;
    LogTagReader& operator=(const LogTagReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    const std::string message_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class LogTagReader<VRK::ScriptScanner>;
extern template class LogTagReader<VRK::PlainScanner>;

} // namespace Prim

#endif
