#include "base/script/AtomicFileWriter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/UnableToAccessFileException.h"

#include <boost/filesystem/operations.hpp>

#include <fstream>

namespace VRK {

namespace {

boost::filesystem::path temporaryBeside(const boost::filesystem::path& target)
{
    const boost::filesystem::path name =
        "." + target.filename().string() + boost::filesystem::unique_path(".%%%%%%%%.tmp").string();
    return target.parent_path() / name;
}

[[noreturn]] void fail(const boost::filesystem::path& target, const std::string& reason)
{
    ExceptionUtils::raise<UnableToAccessFileException>("The file \"" + target.string()
                                                        + "\" cannot be written: " + reason + ".");
}

} // namespace

void AtomicFileWriter::write(const boost::filesystem::path& target, const Content& content)
{
    const boost::filesystem::path temporary = temporaryBeside(target);
    try {
        std::ofstream out(temporary.string(), std::ios::binary | std::ios::trunc);
        if (!out)
            fail(target, "its folder does not accept a new file");
        content(out);
        out.close();
        if (!out)
            fail(target, "the data could not be stored");
        boost::system::error_code error;
        boost::filesystem::rename(temporary, target, error);
        if (error)
            fail(target, error.message());
    } catch (...) {
        boost::system::error_code ignored;
        boost::filesystem::remove(temporary, ignored);
        throw;
    }
}

} // namespace VRK
