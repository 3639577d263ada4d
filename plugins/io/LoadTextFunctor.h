#ifndef VRK_PLUGINS_IO_LOADTEXTFUNCTOR_H
#define VRK_PLUGINS_IO_LOADTEXTFUNCTOR_H

#include "plugins/prim/files/FilenamedFunctor.h"

namespace Io {

// Reads a text file, byte for byte, into its output "text".
class LoadText : public Prim::FilenamedFunctor {
public:
    LoadText();
    LoadText(const LoadText&) = default;
    LoadText& operator=(const LoadText&) = default;
    ~LoadText() override;

    void runImpl() override;
};

} // namespace Io

#endif
