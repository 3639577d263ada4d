#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTEDITOR_H

#include "base/data/DataEditor.h"

namespace Prim {

// Builds percentual values, held as the fraction 0..1.
class PercentEditor : public VRK::DataEditor {
public:
    PercentEditor();
    PercentEditor(const PercentEditor&) = default;
    PercentEditor& operator=(const PercentEditor&) = default;
    ~PercentEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    // The fraction, 0 to 1 inclusive.
    void setPercent(double fraction);
    // The percentage, 0 to 100 inclusive; stored as the fraction.
    void setPercent100(double percentage);
    double getPercent() const { return value_; }

private:
    double value_;
};

} // namespace Prim

#endif
