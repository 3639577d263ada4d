#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class BoolEditor;

// Prints ".yes" or ".no".
class BoolWriter : public VRK::DataWriter {
public:
    explicit BoolWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const BoolEditor* editor_;
};

} // namespace Prim

#endif
