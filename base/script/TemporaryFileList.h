#ifndef VRK_BASE_SCRIPT_TEMPORARYFILELIST_H
#define VRK_BASE_SCRIPT_TEMPORARYFILELIST_H

#include <boost/filesystem/path.hpp>

namespace VRK {

// The temporary files being written, which a signal handler that ends the process
// removes: kept in fixed buffers with lock-free flags, so that the handler reads them
// without allocating. A file that finds every place taken goes on unlisted.
class TemporaryFileList {
public:
    // Lists `file` for as long as this object lives.
    explicit TemporaryFileList(const boost::filesystem::path& file);
    ~TemporaryFileList();
    TemporaryFileList(const TemporaryFileList&) = delete;
    TemporaryFileList& operator=(const TemporaryFileList&) = delete;

    // Unlinks every file listed; safe inside a signal handler. Files listed or
    // unlisted meanwhile are left alone.
    static void removeAll() noexcept;

private:
    // The place of the file in the list, or -1.
    int slot_;
};

} // namespace VRK

#endif
