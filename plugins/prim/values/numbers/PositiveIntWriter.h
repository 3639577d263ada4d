#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class PositiveIntEditor;

// Prints the integer in decimal.
class PositiveIntWriter : public VRK::DataWriter {
public:
    explicit PositiveIntWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const PositiveIntEditor* editor_;
};

} // namespace Prim

#endif
