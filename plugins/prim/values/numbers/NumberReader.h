#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NUMBERREADER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NUMBERREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"

#include <cstddef>

namespace Prim {

// Reads one number, an int or a double in decimal notation, and hands it to one setter
// of the editor; the editor's own checks then apply. The readers of the number types
// differ only in their message and their setter.
template <class ScannerT, class ValueT>
class NumberReader : public VRK::DataReader<ScannerT> {
public:
    using Setter = void (*)(VRK::DataEditor& editor, ValueT value);

    std::ptrdiff_t read(const ScannerT& scan) const override;

protected:
    // `message`, a literal, says what was expected when the text is not a number.
    NumberReader(VRK::DataEditor* dataEditor, const char* message, Setter set);

private:
    // A reader serves one value: its parser is made when it reads, at no cost of its
    // own, rather than kept as a rule.
    const char* message_;
    Setter set_;
};

// The number readers by the kind of number, as value readers take their base.
template <class ScannerT>
using IntNumberReader = NumberReader<ScannerT, int>;
template <class ScannerT>
using RealNumberReader = NumberReader<ScannerT, double>;

extern template class NumberReader<VRK::ScriptScanner, int>;
extern template class NumberReader<VRK::PlainScanner, int>;
extern template class NumberReader<VRK::ScriptScanner, double>;
extern template class NumberReader<VRK::PlainScanner, double>;

} // namespace Prim

#endif
