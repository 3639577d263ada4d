#include "plugins/prim/FilenameData.h"

namespace Prim {

FilenameData::~FilenameData() = default;

} // namespace Prim
