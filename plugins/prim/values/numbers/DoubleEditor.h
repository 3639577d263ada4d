#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLEEDITOR_H

#include "base/data/DataEditor.h"

namespace Prim {

// Builds real values; refuses NaN and infinities.
class DoubleEditor : public VRK::DataEditor {
public:
    DoubleEditor();
    DoubleEditor(const DoubleEditor&) = default;
    DoubleEditor& operator=(const DoubleEditor&) = default;
    ~DoubleEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setDouble(double value);
    double getDouble() const { return value_; }

private:
    double value_;
};

} // namespace Prim

#endif
