#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEWRITER_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class FilenameEditor;

// Prints a filename between double quotes, in its form relative to the work directory
// (complete when no work directory applies).
// Companion plugins write their own filename types with it.
class FilenameWriter : public VRK::DataWriter {
public:
    explicit FilenameWriter(const VRK::DataEditor* dataEditor);
    FilenameWriter(const FilenameWriter& other);
    FilenameWriter& operator=(const FilenameWriter& other);
    ~FilenameWriter() override;

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const FilenameEditor* editor_;
};

} // namespace Prim

#endif
