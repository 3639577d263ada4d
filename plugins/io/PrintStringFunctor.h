#ifndef VRK_PLUGINS_IO_PRINTSTRINGFUNCTOR_H
#define VRK_PLUGINS_IO_PRINTSTRINGFUNCTOR_H

#include "base/graph/Functor.h"

namespace Io {

// Writes its "label" followed by its "string" to the log at ".result".
class PrintString : public VRK::Functor {
public:
    PrintString();
    PrintString(const PrintString&) = default;
    PrintString& operator=(const PrintString&) = default;
    ~PrintString() override;

    void runImpl() override;
};

} // namespace Io

#endif
