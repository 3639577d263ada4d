#ifndef VRK_PLUGINS_PRIM_VALUES_PRIMEDITORUTILS_H
#define VRK_PLUGINS_PRIM_VALUES_PRIMEDITORUTILS_H

#include "base/data/DataCast.h"
#include "base/data/DataEditor.h"
#include "base/data/DataPool.h"

#include <cassert>
#include <cstring>
#include <memory>
#include <typeinfo>

namespace Prim {

// Readers and writers are created by type name with the host's generic editor; each
// works on one editor class, and being handed another one is a programming error.
class PrimEditorUtils {
public:
    template <class EditorT>
    static EditorT& editorOf(VRK::DataEditor* dataEditor)
    {
        assert(dataEditor != 0 && "dataEditor != 0");
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

    // Packs `value` into `editor` as DataT. A typed-in value is packed again at every
    // pass of a loop; while it stays the same, the datum packed last time serves.
    template <class DataT>
    static void pack(VRK::DataEditor& editor, const typename DataT::ValueType& value)
    {
        if (editor.hasData()) {
            const VRK::BaseData& packed = editor.getData();
            if (typeid(packed) == typeid(DataT)
                && same(VRK::DataCast::find<DataT>(packed)->getValue(), value))
                return;
        }
        editor.setDataPtr(VRK::DataPool::make<DataT>(value));
    }

private:
    template <class T>
    static bool same(const T& packed, const T& value)
    {
        return packed == value;
    }
    // 0.0 and -0.0 compare equal but print differently.
    static bool same(double packed, double value)
    {
        return std::memcmp(&packed, &value, sizeof value) == 0;
    }
};

} // namespace Prim

#endif
