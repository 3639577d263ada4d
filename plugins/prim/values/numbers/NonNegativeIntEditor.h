#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTEDITOR_H

#include "base/data/DataEditor.h"

namespace Prim {

// Builds integer values of 0 or more.
class NonNegativeIntEditor : public VRK::DataEditor {
public:
    NonNegativeIntEditor();
    NonNegativeIntEditor(const NonNegativeIntEditor&) = default;
    NonNegativeIntEditor& operator=(const NonNegativeIntEditor&) = default;
    ~NonNegativeIntEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setNonNegativeInt(int value);
    int getNonNegativeInt() const { return value_; }

private:
    int value_;
};

} // namespace Prim

#endif
