#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class NameEditor;

// Prints the name between double quotes; a name holds no quote to escape.
class NameWriter : public VRK::DataWriter {
public:
    explicit NameWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const NameEditor* editor_;
};

} // namespace Prim

#endif
