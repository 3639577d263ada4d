#ifndef VRK_PLUGINS_IO_SAVETEXTFUNCTOR_H
#define VRK_PLUGINS_IO_SAVETEXTFUNCTOR_H

#include "plugins/prim/files/FilenamedFunctor.h"

namespace Io {

// Writes its "text", byte for byte, to a text file: through a temporary file beside it
// and a rename, so that a failed or cancelled run leaves no half-written file. It
// creates no folders.
class SaveText : public Prim::FilenamedFunctor {
public:
    SaveText();
    SaveText(const SaveText&) = default;
    SaveText& operator=(const SaveText&) = default;
    ~SaveText() override;

    void runImpl() override;
};

} // namespace Io

#endif
