#include "plugins/io/TextFileViewer.h"

#include "plugins/io/TextFileType.h"

namespace Io {

TextFileViewer::TextFileViewer()
    : Prim::FilenameViewer("TextFileViewer", "Viewer for inspecting text file names",
                           TextFileType::getInstance())
{
}

TextFileViewer::~TextFileViewer() = default;

} // namespace Io
