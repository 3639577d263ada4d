#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class DoubleEditor;

// Prints the real with the precision and flags that the stream already has.
class DoubleWriter : public VRK::DataWriter {
public:
    explicit DoubleWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const DoubleEditor* editor_;
};

} // namespace Prim

#endif
