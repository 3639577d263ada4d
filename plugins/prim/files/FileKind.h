#ifndef VRK_PLUGINS_PRIM_FILES_FILEKIND_H
#define VRK_PLUGINS_PRIM_FILES_FILEKIND_H

#include <cctype>
#include <string>

namespace Prim {

// The base of a file kind (see FileKindData): KindT names the kind's type (`name`,
// "TextFile") and the `word` by which messages name such a file ("text file"); this base
// names its classes and makes its description ("Text file") from the word.
template <class KindT, class DataT, class EditorT, class TypeT, class ViewerT>
struct FileKind {
    using Data = DataT;
    using Editor = EditorT;
    using Type = TypeT;
    using Viewer = ViewerT;

    static std::string description()
    {
        std::string text = KindT::word;
        text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
        return text;
    }
};

} // namespace Prim

#endif
