#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class PercentEditor;

// Prints the fraction, never a percentage: "50%" is written back as "0.5".
class PercentWriter : public VRK::DataWriter {
public:
    explicit PercentWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const PercentEditor* editor_;
};

} // namespace Prim

#endif
