#include "base/script/AtomicFileWriter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/UnableToAccessFileException.h"
#include "base/script/StaleTemporaryRemover.h"
#include "base/script/TemporaryFileList.h"
#include "base/script/TemporaryFileName.h"

#include <boost/filesystem/operations.hpp>

#include <fstream>

namespace VRK {

namespace {

namespace fs = boost::filesystem;

[[noreturn]] void fail(const fs::path& target, const std::string& reason)
{
    ExceptionUtils::raise<UnableToAccessFileException>("The file \"" + target.string()
                                                        + "\" cannot be written: " + reason + ".");
}

// Where the bytes go: the file that a chain of symbolic links ends in, so that the
// links stay links.
fs::path followLinks(const fs::path& target)
{
    fs::path followed = target;
    boost::system::error_code error;
    for (int hops = 0; fs::is_symlink(followed, error); ++hops) {
        if (hops == 40)
            fail(target, "its symbolic links lead round in a circle");
        const fs::path link = fs::read_symlink(followed, error);
        if (error)
            fail(target, error.message());
        followed = link.is_absolute() ? link : followed.parent_path() / link;
    }
    return followed;
}

void keepPermissions(const fs::path& target, const fs::path& temporary)
{
    boost::system::error_code error;
    const fs::file_status existing = fs::status(target, error);
    if (error || !fs::exists(existing))
        return;
    fs::permissions(temporary, existing.permissions(), error);
    if (error)
        fail(target, error.message());
}

void writeAndRename(const fs::path& target, const fs::path& temporary,
                    const AtomicFileWriter::FileContent& content)
{
    content(temporary);
    keepPermissions(target, temporary);
    boost::system::error_code error;
    fs::rename(temporary, target, error);
    if (error)
        fail(target, error.message());
}

} // namespace

void AtomicFileWriter::write(const fs::path& target, const Content& content)
{
    writeFile(target, [&](const fs::path& temporary) {
        std::ofstream out(temporary.string(), std::ios::binary | std::ios::trunc);
        if (!out)
            fail(target, "its folder does not accept a new file");
        content(out);
        out.close();
        if (!out)
            fail(target, "the data could not be stored");
    });
}

void AtomicFileWriter::writeFile(const fs::path& target, const FileContent& content)
{
    const fs::path destination = followLinks(target);
    StaleTemporaryRemover::removeFor(destination);
    const fs::path temporary = TemporaryFileName::beside(destination);
    const TemporaryFileList listed(temporary);
    try {
        writeAndRename(destination, temporary, content);
    } catch (...) {
        boost::system::error_code ignored;
        fs::remove(temporary, ignored);
        throw;
    }
}

void AtomicFileWriter::removeTemporaries() noexcept
{
    TemporaryFileList::removeAll();
}

} // namespace VRK
