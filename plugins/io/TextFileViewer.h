#ifndef VRK_PLUGINS_IO_TEXTFILEVIEWER_H
#define VRK_PLUGINS_IO_TEXTFILEVIEWER_H

#include "plugins/io/TextFileKind.h"
#include "plugins/prim/files/FileKindViewer.h"

namespace Io {

// Inspects names of text files.
class TextFileViewer : public Prim::FileKindViewer<TextFileKind> {
public:
    ~TextFileViewer() override;
};

} // namespace Io

extern template class Prim::FileKindViewer<Io::TextFileKind>;

#endif
