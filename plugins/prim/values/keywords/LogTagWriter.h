#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGWRITER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class LogTagEditor;

// Prints the keyword of the level, such as ".info2".
class LogTagWriter : public VRK::DataWriter {
public:
    explicit LogTagWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const LogTagEditor* editor_;
};

} // namespace Prim

#endif
