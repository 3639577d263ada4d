#ifndef VRK_PLUGINS_PRIM_NUMBERREADER_H
#define VRK_PLUGINS_PRIM_NUMBERREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <functional>
#include <string>

namespace Prim {

// Reads one number, an int or a double in decimal notation, and hands it to one setter
// of the editor; the editor's own checks then apply. The readers of the number types
// differ only in their message and their setter.
template <class ScannerT, class ValueT>
class NumberReader : public VRK::DataReader<ScannerT> {
public:
    // The grammar's actions point into this reader.
    NumberReader(const NumberReader&) = delete;
    NumberReader& operator=(const NumberReader&) = delete;

    std::ptrdiff_t read(const ScannerT& scan) const override;

protected:
    // `message` says what was expected when the text is not a number.
    NumberReader(VRK::DataEditor* dataEditor, const std::string& message,
                 std::function<void(ValueT)> set);

private:
    std::function<void(ValueT)> set_;
    boost::spirit::classic::rule<ScannerT> grammar_;
};

extern template class NumberReader<VRK::ScriptScanner, int>;
extern template class NumberReader<VRK::PlainScanner, int>;
extern template class NumberReader<VRK::ScriptScanner, double>;
extern template class NumberReader<VRK::PlainScanner, double>;

} // namespace Prim

#endif
