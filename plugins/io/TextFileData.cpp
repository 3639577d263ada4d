#include "plugins/io/TextFileData.h"

namespace Io {

TextFileData::~TextFileData() = default;

} // namespace Io
