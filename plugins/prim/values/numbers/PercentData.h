#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTDATA_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTDATA_H

#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "plugins/prim/values/numbers/PercentViewer.h"

namespace Prim {

// Percentual values, as the fraction 0..1; the range is the reader's and editor's to
// enforce. A percentage is a real (its type's parent is Double), so the datum is one:
// it can be read wherever a Double is expected.
class PercentData : public DoubleData {
public:
    using ViewerType = PercentViewer;
    using EditorType = PercentEditor;

    explicit PercentData(double value = 0.0);
    PercentData(const PercentData&) = default;
    ~PercentData() override;
};

} // namespace Prim

#endif
