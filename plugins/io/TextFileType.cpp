#include "plugins/io/TextFileType.h"

namespace Io {

TextFileType::TextFileType() : VRK::TypeShim<TextFileType, TextFileData>("TextFile", "Text file") {}

TextFileType::~TextFileType() = default;

} // namespace Io
