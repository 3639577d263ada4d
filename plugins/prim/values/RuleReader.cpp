#include "plugins/prim/values/RuleReader.h"

namespace Prim {

template <class ScannerT>
RuleReader<ScannerT>::RuleReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor)
{
}

template <class ScannerT>
std::ptrdiff_t RuleReader<ScannerT>::read(const ScannerT& scan) const
{
    return grammar_.parse(scan).length();
}

template class RuleReader<VRK::ScriptScanner>;
template class RuleReader<VRK::PlainScanner>;

} // namespace Prim
