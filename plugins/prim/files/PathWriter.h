#ifndef VRK_PLUGINS_PRIM_FILES_PATHWRITER_H
#define VRK_PLUGINS_PRIM_FILES_PATHWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class PathEditor;

// Prints the path, relative to the current folder, between double quotes.
class PathWriter : public VRK::DataWriter {
public:
    explicit PathWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const PathEditor* editor_;
};

} // namespace Prim

#endif
