#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTDATA_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTDATA_H

#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"

namespace Prim {

// An integer of 0 or more. Whoever builds one checks the value first and reports the error.
class NonNegativeIntData : public IntData {
public:
    using EditorType = NonNegativeIntEditor;

    explicit NonNegativeIntData(int value = 0);
    NonNegativeIntData(const NonNegativeIntData&) = default;
    ~NonNegativeIntData() override;
};

} // namespace Prim

#endif
