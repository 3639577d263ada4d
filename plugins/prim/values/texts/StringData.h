#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGDATA_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_STRINGDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/values/texts/StringEditor.h"
#include "plugins/prim/values/texts/StringViewer.h"

#include <string>

namespace Prim {

// Byte strings.
using StringData = VRK::PrimData<std::string, StringViewer, StringEditor>;

} // namespace Prim

#endif
