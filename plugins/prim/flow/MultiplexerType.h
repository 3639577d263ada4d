#ifndef VRK_PLUGINS_PRIM_FLOW_MULTIPLEXERTYPE_H
#define VRK_PLUGINS_PRIM_FLOW_MULTIPLEXERTYPE_H

#include "base/data/BaseType.h"

namespace Prim {

// The type of functors that offer a capability; no data has it.
class MultiplexerType : public VRK::BaseType {
public:
    MultiplexerType();
    ~MultiplexerType() override;
};

} // namespace Prim

#endif
