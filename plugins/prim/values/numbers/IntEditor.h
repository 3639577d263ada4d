#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTEDITOR_H

#include "base/data/DataEditor.h"

namespace Prim {

// Builds integer values; every int is accepted.
class IntEditor : public VRK::DataEditor {
public:
    IntEditor();
    IntEditor(const IntEditor&) = default;
    IntEditor& operator=(const IntEditor&) = default;
    ~IntEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setInt(int value);
    int getInt() const { return value_; }

private:
    int value_;
};

} // namespace Prim

#endif
