#ifndef VRK_PLUGINS_IO_PRINTVALUEFUNCTOR_H
#define VRK_PLUGINS_IO_PRINTVALUEFUNCTOR_H

#include "base/graph/Functor.h"

namespace Io {

// Writes its "label" followed by its "value" to the log at ".result", the value in the
// shortest decimal form that reads back to the same double: 3 prints "3", 0.1 "0.1".
class PrintValue : public VRK::Functor {
public:
    PrintValue();
    PrintValue(const PrintValue&) = default;
    PrintValue& operator=(const PrintValue&) = default;
    ~PrintValue() override;

    void runImpl() override;

    // The shortest decimal text of `value` that reads back to it.
    static std::string format(double value);
};

} // namespace Io

#endif
