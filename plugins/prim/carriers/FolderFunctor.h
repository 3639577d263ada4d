#ifndef VRK_PLUGINS_PRIM_CARRIERS_FOLDERFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_FOLDERFUNCTOR_H

#include "plugins/prim/carriers/DataCarrierFunctor.h"
#include "plugins/prim/files/FilenameBanneredFunctor.h"

namespace Prim {

// Carries a folder, directory or ".zip" archive; its box shows the folder as the
// filename-carrying functors show their files.
class Folder : public FilenameBanneredFunctor<DataCarrierFunctor> {
public:
    Folder();
    Folder(const Folder&) = default;
    Folder& operator=(const Folder&) = default;
    ~Folder() override;
};

} // namespace Prim

#endif
