#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGEDITOR_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGEDITOR_H

#include "base/data/DataEditor.h"
#include "base/log/LogTag.h"

namespace Prim {

// Builds log levels; prints them by their keyword (".trace").
class LogTagEditor : public VRK::DataEditor {
public:
    LogTagEditor();
    LogTagEditor(const LogTagEditor&) = default;
    LogTagEditor& operator=(const LogTagEditor&) = default;
    ~LogTagEditor() override;

    void toStream(std::ostream& out, int indent) const override;
    void packData() override;
    void unpackData(const VRK::BaseData& data) override;

    void setLogTag(VRK::LogTag tag);
    VRK::LogTag getLogTag() const { return value_; }

private:
    VRK::LogTag value_;
};

} // namespace Prim

#endif
