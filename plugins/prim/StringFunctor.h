#ifndef PRIM_STRINGFUNCTOR_H
#define PRIM_STRINGFUNCTOR_H

#include "plugins/prim/DataCarrierFunctor.h"

namespace Prim {

// Carries a string typed in once.
class String : public DataCarrierFunctor {
public:
    String();
    String(const String&) = default;
    String& operator=(const String&) = default;
    ~String() override;
};

} // namespace Prim

#endif
