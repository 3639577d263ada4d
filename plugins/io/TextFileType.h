#ifndef VRK_PLUGINS_IO_TEXTFILETYPE_H
#define VRK_PLUGINS_IO_TEXTFILETYPE_H

#include "base/data/TypeShim.h"
#include "plugins/io/TextFileData.h"

namespace Io {

class TextFileType : public VRK::TypeShim<TextFileType, TextFileData> {
public:
    TextFileType();
    ~TextFileType() override;
};

} // namespace Io

#endif
