#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class IntSetEditor;

// Prints "[ 1, 5, 7 ]" in ascending order, or "[]" for the empty set (which no
// reader accepts).
class IntSetWriter : public VRK::DataWriter {
public:
    explicit IntSetWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const IntSetEditor* editor_;
};

} // namespace Prim

#endif
