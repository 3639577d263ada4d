#include "plugins/prim/files/FilenameData.h"

namespace Prim {

FilenameData::~FilenameData() = default;

} // namespace Prim
