#include "plugins/prim/values/numbers/NumberReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/values/numbers/ExactRealParser.h"

#include <type_traits>

namespace Prim {

namespace {
// A number that does not fit in an int does not match int_p. real_p, under the exact
// conversion, knows no "inf" or "nan": such text is not a real here.
template <class ValueT>
auto numberParser()
{
    if constexpr (std::is_same_v<ValueT, int>) {
        return boost::spirit::classic::int_p;
    } else {
        static_assert(std::is_same_v<ValueT, double>, "an int or a double");
        return Spirit::exact_real_p;
    }
}
} // namespace

template <class ScannerT, class ValueT>
NumberReader<ScannerT, ValueT>::NumberReader(VRK::DataEditor* dataEditor, const char* message,
                                             Setter set)
    : VRK::DataReader<ScannerT>(dataEditor), message_(message), set_(set)
{
}

template <class ScannerT, class ValueT>
std::ptrdiff_t NumberReader<ScannerT, ValueT>::read(const ScannerT& scan) const
{
    VRK::DataEditor& editor = *this->getDataEditor();
    const Setter set = set_;
    return VRK::Spirit::transduced_assertive_p(
               numberParser<ValueT>()[([&editor, set](ValueT value) { set(editor, value); })],
               message_)
        .parse(scan)
        .length();
}

template class NumberReader<VRK::ScriptScanner, int>;
template class NumberReader<VRK::PlainScanner, int>;
template class NumberReader<VRK::ScriptScanner, double>;
template class NumberReader<VRK::PlainScanner, double>;

} // namespace Prim
