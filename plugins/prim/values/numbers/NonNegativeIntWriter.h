#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class NonNegativeIntEditor;

// Prints the integer in decimal.
class NonNegativeIntWriter : public VRK::DataWriter {
public:
    explicit NonNegativeIntWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const NonNegativeIntEditor* editor_;
};

} // namespace Prim

#endif
