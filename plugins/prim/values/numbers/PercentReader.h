#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTREADER_H

#include "plugins/prim/values/RuleReader.h"

#include <string>

namespace Prim {

// Reads a fraction ("0.25") or, followed by "%", a percentage ("25%").
template <class ScannerT>
class PercentReader : public RuleReader<ScannerT> {
public:
    explicit PercentReader(VRK::DataEditor* dataEditor);

private:
    // The number read, kept until it is known whether a "%" follows.
    double number_ = 0.0;
    bool percentage_ = false;
};

extern template class PercentReader<VRK::ScriptScanner>;
extern template class PercentReader<VRK::PlainScanner>;

} // namespace Prim

#endif
