#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class IntEditor;

// Prints the integer in decimal.
class IntWriter : public VRK::DataWriter {
public:
    explicit IntWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const IntEditor* editor_;
};

} // namespace Prim

#endif
