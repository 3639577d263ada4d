#include "plugins/io/TextFileViewer.h"

#include "plugins/io/TextFileType.h"

template class Prim::FileKindViewer<Io::TextFileKind>;

namespace Io {

TextFileViewer::~TextFileViewer() = default;

} // namespace Io
