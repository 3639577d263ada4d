#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class StringEditor;

// Prints the string between double quotes, each quote in it preceded by a
// backslash. Backslashes are printed as they are, so a string ending in a backslash
// does not read back.
class StringWriter : public VRK::DataWriter {
public:
    explicit StringWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const StringEditor* editor_;
};

} // namespace Prim

#endif
