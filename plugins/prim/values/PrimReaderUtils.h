#ifndef VRK_PLUGINS_PRIM_VALUES_PRIMREADERUTILS_H
#define VRK_PLUGINS_PRIM_VALUES_PRIMREADERUTILS_H

#include "base/data/DataEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

#include <cassert>
#include <functional>
#include <utility>

namespace Prim {

// What the value readers share in reaching their editor.
class PrimReaderUtils {
public:
    // The editor of class EditorT that a reader is built on: a missing editor and one of
    // another class are both programming errors.
    template <class EditorT>
    static EditorT& editorOf(VRK::DataEditor* dataEditor)
    {
        assert(dataEditor != 0 && "dataEditor != 0");
        return PrimEditorUtils::editorOf<EditorT>(dataEditor);
    }

    // A call of `Set` on the editor of class EditorT that it is given: a plain function,
    // for readers made anew for every value, that make no closure.
    template <class EditorT, class ValueT, void (EditorT::*Set)(ValueT)>
    static void set(VRK::DataEditor& dataEditor, ValueT value)
    {
        (editorOf<EditorT>(&dataEditor).*Set)(std::move(value));
    }

    // A call of `set` on that editor, for the value a reader has read.
    template <class EditorT, class ValueT>
    static std::function<void(ValueT)> setterOf(VRK::DataEditor* dataEditor,
                                                void (EditorT::*set)(ValueT))
    {
        EditorT* editor = &editorOf<EditorT>(dataEditor);
        return [editor, set](ValueT value) { (editor->*set)(std::move(value)); };
    }
};

} // namespace Prim

#endif
