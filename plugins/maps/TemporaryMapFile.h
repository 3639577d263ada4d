#ifndef VRK_PLUGINS_MAPS_TEMPORARYMAPFILE_H
#define VRK_PLUGINS_MAPS_TEMPORARYMAPFILE_H

#include "base/script/TemporaryFileList.h"
#include "tessaly/raster/RasterSource.h"

#include <boost/filesystem/path.hpp>

#include <memory>

class GDALDataset;

namespace Maps {

// A map beyond the memory budget, written strip by strip into a temporary file in the
// system's temporary folder (TMPDIR) and read back by strips. The file's name is gone
// from the folder as soon as it is open for reading, so that it never outlives the
// process however the process ends; one left unfinished is removed with this object.
class TemporaryMapFile {
public:
    // A file for the map of `header`'s grid, cell type and NoData.
    explicit TemporaryMapFile(const Tessaly::Raster& header);
    ~TemporaryMapFile();
    TemporaryMapFile(const TemporaryMapFile&) = delete;
    TemporaryMapFile& operator=(const TemporaryMapFile&) = delete;

    // The strips come in order, from the first line down.
    void write(const Tessaly::Raster& strip);
    // The map written, read from the file by strips.
    std::shared_ptr<const Tessaly::RasterSource> finish();

private:
    [[noreturn]] void fail() const;

    boost::filesystem::path file_;
    // A second Ctrl-C, which ends the process at once, removes the file too.
    VRK::TemporaryFileList listed_;
    std::unique_ptr<GDALDataset> dataset_;
};

} // namespace Maps

#endif
