#include "base/DataConverter.h"

namespace VRK {

DataConverter::~DataConverter() = default;

} // namespace VRK
