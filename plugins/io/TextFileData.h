#ifndef VRK_PLUGINS_IO_TEXTFILEDATA_H
#define VRK_PLUGINS_IO_TEXTFILEDATA_H

#include "base/data/Data.h"
#include "plugins/io/TextFileEditor.h"
#include "plugins/io/TextFileViewer.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/FilenameData.h"

namespace Io {

// The name of a text file, held as a compound filename.
class TextFileData : public VRK::Data<Prim::CompoundFilename, TextFileViewer, TextFileEditor>,
                     public Prim::FilenameData {
public:
    TextFileData() = default;
    explicit TextFileData(const Prim::CompoundFilename& filename);
    TextFileData(const TextFileData&) = default;
    ~TextFileData() override;

    const Prim::CompoundFilename& getCompoundFilename() const override { return getValue(); }

    // How messages name a file of this kind.
    static constexpr const char* kindWord = "text file";
};

} // namespace Io

#endif
