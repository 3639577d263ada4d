#include "plugins/prim/values/texts/NameData.h"

namespace Prim {

NameData::NameData(const std::string& name) : StringData(name) {}

NameData::~NameData() = default;

} // namespace Prim
