#include "plugins/prim/files/FilenameReader.h"

#include "plugins/prim/files/FilenameEditor.h"
#include "plugins/prim/values/PrimReaderUtils.h"

#include <utility>

namespace Prim {

namespace {
std::function<void(std::string)> recorderOf(VRK::DataEditor* dataEditor)
{
    FilenameEditor* editor = &PrimReaderUtils::editorOf<FilenameEditor>(dataEditor);
    return [editor](std::string text) { editor->setFilename(std::move(text), false); };
}
} // namespace

template <class ScannerT>
FilenameReader<ScannerT>::FilenameReader(VRK::DataEditor* dataEditor, const std::string& item)
    : QuotedTextReader<ScannerT>(dataEditor, item, QuotedTextReader<ScannerT>::Escapes::none,
                                 recorderOf(dataEditor))
{
}

template class FilenameReader<VRK::ScriptScanner>;
template class FilenameReader<VRK::PlainScanner>;

} // namespace Prim
