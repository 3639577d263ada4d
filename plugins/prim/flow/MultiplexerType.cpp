#include "plugins/prim/flow/MultiplexerType.h"

namespace Prim {

MultiplexerType::MultiplexerType()
    : VRK::BaseType("Multiplexer", "Functors with multiplexing capabilities")
{
}

MultiplexerType::~MultiplexerType() = default;

} // namespace Prim
