#ifndef VRK_PLUGINS_IO_TEXTFILEVIEWER_H
#define VRK_PLUGINS_IO_TEXTFILEVIEWER_H

#include "plugins/prim/files/FilenameViewer.h"

namespace Io {

// Inspects names of text files.
class TextFileViewer : public Prim::FilenameViewer {
public:
    TextFileViewer();
    TextFileViewer(const TextFileViewer&) = default;
    TextFileViewer& operator=(const TextFileViewer&) = default;
    ~TextFileViewer() override;
};

} // namespace Io

#endif
