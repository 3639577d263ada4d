#ifndef VRK_PLUGINS_IO_TEXTFILEKIND_H
#define VRK_PLUGINS_IO_TEXTFILEKIND_H

namespace Io {

class TextFileData;
class TextFileEditor;
class TextFileType;
class TextFileViewer;

// The text file type's classes and words, from which Prim's file-kind templates make
// them.
struct TextFileKind {
    using Data = TextFileData;
    using Editor = TextFileEditor;
    using Type = TextFileType;
    using Viewer = TextFileViewer;
    static constexpr const char* name = "TextFile";
    static constexpr const char* description = "Text file";
    static constexpr const char* word = "text file";
};

} // namespace Io

#endif
