#ifndef VRK_PLUGINS_PRIM_CARRIERS_FOLDERJUNCTIONFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_FOLDERJUNCTIONFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Joins two alternative pipelines that each may produce a folder.
class FolderJunction : public VRK::Functor {
public:
    FolderJunction();
    FolderJunction(const FolderJunction&) = default;
    FolderJunction& operator=(const FolderJunction&) = default;
    ~FolderJunction() override;

    void runImpl() override;
};

} // namespace Prim

#endif
