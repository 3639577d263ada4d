#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_BOOLEDITOR_H

#include "base/data/DataEditor.h"

namespace Prim {

// Builds Bool values; prints them as "Yes" or "No".
class BoolEditor : public VRK::DataEditor {
public:
    BoolEditor();
    BoolEditor(const BoolEditor&) = default;
    BoolEditor& operator=(const BoolEditor&) = default;
    ~BoolEditor() override;

    void toStream(std::ostream& out, int indent) const override;
    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setBool(bool value);
    bool getBool() const { return value_; }

private:
    bool value_;
};

} // namespace Prim

#endif
