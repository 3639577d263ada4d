#ifndef VRK_PLUGINS_IO_TEXTFILEKIND_H
#define VRK_PLUGINS_IO_TEXTFILEKIND_H

#include "plugins/prim/files/FileKind.h"

namespace Io {

// The text file type's classes (declared here, where they are first named) and words, from
// which Prim's file-kind templates make them.
struct TextFileKind : Prim::FileKind<TextFileKind, class TextFileData, class TextFileEditor,
                                     class TextFileType, class TextFileViewer> {
    static constexpr const char* name = "TextFile";
    static constexpr const char* word = "text file";
};

} // namespace Io

#endif
