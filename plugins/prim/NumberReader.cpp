#include "plugins/prim/NumberReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/ExactRealParser.h"

#include <type_traits>
#include <utility>

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
NumberReader<ScannerT, ValueT>::NumberReader(VRK::DataEditor* dataEditor,
                                             const std::string& message,
                                             std::function<void(ValueT)> set)
    : VRK::DataReader<ScannerT>(dataEditor), set_(std::move(set))
{
    grammar_ = VRK::Spirit::transduced_assertive_p(
        numberParser<ValueT>()[([this](ValueT value) { set_(value); })], message);
}

template <class ScannerT, class ValueT>
std::ptrdiff_t NumberReader<ScannerT, ValueT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class NumberReader<VRK::ScriptScanner, int>;
template class NumberReader<VRK::PlainScanner, int>;
template class NumberReader<VRK::ScriptScanner, double>;
template class NumberReader<VRK::PlainScanner, double>;

} // namespace Prim
