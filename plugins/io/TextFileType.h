#ifndef VRK_PLUGINS_IO_TEXTFILETYPE_H
#define VRK_PLUGINS_IO_TEXTFILETYPE_H

#include "plugins/io/TextFileData.h"
#include "plugins/io/TextFileKind.h"
#include "plugins/prim/files/FileKindType.h"

namespace Io {

class TextFileType : public Prim::FileKindType<TextFileKind> {
public:
    TextFileType();
    ~TextFileType() override;
};

} // namespace Io

#endif
