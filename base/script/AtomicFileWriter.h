#ifndef VRK_BASE_SCRIPT_ATOMICFILEWRITER_H
#define VRK_BASE_SCRIPT_ATOMICFILEWRITER_H

#include <boost/filesystem/path.hpp>

#include <functional>
#include <ostream>

namespace VRK {

// Writes a file so that it is never seen half-written: the content goes to a temporary
// file beside the target, which replaces the target by a rename once complete. When
// anything fails, the temporary file is removed and an existing target is untouched.
//
// A target that is a symbolic link is written where the link leads, and the link stays;
// a target that exists keeps its permissions. The temporary file's name stays within
// the file system's limit on names, however long the target's name (TemporaryFileName),
// and temporary files of the target that a killed writer left are removed first
// (StaleTemporaryRemover).
class AtomicFileWriter {
public:
    using Content = std::function<void(std::ostream&)>;
    // Writes the whole file at the path given, for writers that open files themselves.
    using FileContent = std::function<void(const boost::filesystem::path& temporary)>;

    // Throws an UnableToAccessFileException when the file cannot be written; an
    // exception of `content` passes through.
    static void write(const boost::filesystem::path& target, const Content& content);
    static void writeFile(const boost::filesystem::path& target, const FileContent& content);

    // Removes the temporary files of the writes under way, and any other file listed
    // in TemporaryFileList, for a signal handler that ends the process: it only unlinks
    // files, which is safe inside a handler. Writes that start or end meanwhile are
    // left alone.
    static void removeTemporaries() noexcept;
};

} // namespace VRK

#endif
