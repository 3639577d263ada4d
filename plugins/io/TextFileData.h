#ifndef VRK_PLUGINS_IO_TEXTFILEDATA_H
#define VRK_PLUGINS_IO_TEXTFILEDATA_H

#include "plugins/io/TextFileEditor.h"
#include "plugins/io/TextFileKind.h"
#include "plugins/io/TextFileViewer.h"
#include "plugins/prim/files/FileKindData.h"

namespace Io {

// The name of a text file, held as a compound filename.
class TextFileData : public Prim::FileKindData<TextFileKind> {
public:
    using FileKindData::FileKindData;
    ~TextFileData() override;
};

} // namespace Io

#endif
