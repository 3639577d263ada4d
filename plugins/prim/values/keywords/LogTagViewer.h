#ifndef VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGVIEWER_H
#define VRK_PLUGINS_PRIM_VALUES_KEYWORDS_LOGTAGVIEWER_H

#include "base/data/DataViewer.h"

namespace Prim {

// Inspects log levels.
class LogTagViewer : public VRK::DataViewer {
public:
    LogTagViewer();
    LogTagViewer(const LogTagViewer&) = default;
    LogTagViewer& operator=(const LogTagViewer&) = default;
    ~LogTagViewer() override;

    // Whether the held level is any but ".unconditional" (unlike the editor's getter,
    // which gives the level itself).
    bool getLogTag() const;
};

} // namespace Prim

#endif
