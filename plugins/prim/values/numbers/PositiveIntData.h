#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTDATA_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTDATA_H

#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"

namespace Prim {

// An integer above 0. Whoever builds one checks the value first and reports the error.
class PositiveIntData : public IntData {
public:
    using EditorType = PositiveIntEditor;

    explicit PositiveIntData(int value = 1);
    PositiveIntData(const PositiveIntData&) = default;
    ~PositiveIntData() override;
};

} // namespace Prim

#endif
