#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTDATA_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/numbers/IntViewer.h"

namespace Prim {

// An integer that is also a real: read as IntData it gives the int, read as DoubleData
// the same value as a double, as the Int type's parent Double promises. The constrained
// integers derive from it, so any of them can be read where an Int is expected.
class IntData : public VRK::PrimData<int, IntViewer, IntEditor>, public DoubleData {
public:
    // One meaning for each of the names both parts define.
    using ValueType = int;
    using ViewerType = IntViewer;
    using EditorType = IntEditor;

    explicit IntData(int value = 0);
    IntData(const IntData&) = default;
    ~IntData() override;

    const int& getValue() const { return VRK::PrimData<int, IntViewer, IntEditor>::getValue(); }
    double getDoubleValue() const { return DoubleData::getValue(); }
};

} // namespace Prim

#endif
