#include "plugins/io/TextFileData.h"

namespace Io {

TextFileData::TextFileData(const Prim::CompoundFilename& filename)
    : VRK::Data<Prim::CompoundFilename, TextFileViewer, TextFileEditor>(filename)
{
}

TextFileData::~TextFileData() = default;

} // namespace Io
