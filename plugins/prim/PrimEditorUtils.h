#ifndef VRK_PLUGINS_PRIM_PRIMEDITORUTILS_H
#define VRK_PLUGINS_PRIM_PRIMEDITORUTILS_H

#include "base/data/DataEditor.h"

#include <cassert>

namespace Prim {

// Readers and writers are created by type name with the host's generic editor; each
// works on one editor class, and being handed another one is a programming error.
class PrimEditorUtils {
public:
    template <class EditorT>
    static EditorT& editorOf(VRK::DataEditor* dataEditor)
    {
        EditorT* editor = dynamic_cast<EditorT*>(dataEditor);
        assert(editor != 0 && "editor != 0");
        return *editor;
    }

    template <class EditorT>
    static const EditorT& editorOf(const VRK::DataEditor* dataEditor)
    {
        const EditorT* editor = dynamic_cast<const EditorT*>(dataEditor);
        assert(editor != 0 && "editor != 0");
        return *editor;
    }
};

} // namespace Prim

#endif
