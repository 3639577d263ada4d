#include "plugins/io/TextFileReader.h"

#include "plugins/io/TextFileEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Io {

template <class ScannerT>
TextFileReader<ScannerT>::TextFileReader(VRK::DataEditor* dataEditor)
    : Prim::FilenameReader<ScannerT>(dataEditor, "Text file name")
{
    // Only a text file's editor may be read as a text file.
    Prim::PrimEditorUtils::editorOf<TextFileEditor>(dataEditor);
}

template class TextFileReader<VRK::ScriptScanner>;
template class TextFileReader<VRK::PlainScanner>;

} // namespace Io
