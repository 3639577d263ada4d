#ifndef VRK_PLUGINS_PRIM_CARRIERS_STRINGJUNCTIONFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_STRINGJUNCTIONFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Joins two alternative pipelines that each may produce a string.
class StringJunction : public VRK::Functor {
public:
    StringJunction();
    StringJunction(const StringJunction&) = default;
    StringJunction& operator=(const StringJunction&) = default;
    ~StringJunction() override;

    void runImpl() override;
};

} // namespace Prim

#endif
