#include "base/data/DataConverter.h"

namespace VRK {

DataConverter::~DataConverter() = default;

} // namespace VRK
