#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTEDITOR_H

#include "base/data/DataEditor.h"

namespace Prim {

// Builds integer values above 0.
class PositiveIntEditor : public VRK::DataEditor {
public:
    PositiveIntEditor();
    PositiveIntEditor(const PositiveIntEditor&) = default;
    PositiveIntEditor& operator=(const PositiveIntEditor&) = default;
    ~PositiveIntEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setPositiveInt(int value);
    int getPositiveInt() const { return value_; }

private:
    int value_;
};

} // namespace Prim

#endif
