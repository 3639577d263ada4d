#ifndef VRK_PLUGINS_PRIM_CARRIERS_VALUEJUNCTIONFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_VALUEJUNCTIONFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Joins two alternative pipelines that each may produce a real value.
class ValueJunction : public VRK::Functor {
public:
    ValueJunction();
    ValueJunction(const ValueJunction&) = default;
    ValueJunction& operator=(const ValueJunction&) = default;
    ~ValueJunction() override;

    void runImpl() override;
};

} // namespace Prim

#endif
