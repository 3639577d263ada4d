#ifndef VRK_BASE_SCRIPT_ATOMICFILEWRITER_H
#define VRK_BASE_SCRIPT_ATOMICFILEWRITER_H

#include <boost/filesystem/path.hpp>

#include <functional>
#include <ostream>

namespace VRK {

// Writes a file so that it is never seen half-written: the content goes to a temporary
// file beside the target, which replaces the target by a rename once complete. When
// anything fails, the temporary file is removed and an existing target is untouched.
class AtomicFileWriter {
public:
    using Content = std::function<void(std::ostream&)>;

    // Throws an UnableToAccessFileException when the file cannot be written; an
    // exception of `content` passes through.
    static void write(const boost::filesystem::path& target, const Content& content);
};

} // namespace VRK

#endif
