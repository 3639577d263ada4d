#include "plugins/io/TextFileType.h"

namespace Io {

TextFileType::TextFileType() = default;

TextFileType::~TextFileType() = default;

} // namespace Io
