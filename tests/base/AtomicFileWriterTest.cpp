#include "base/script/AtomicFileWriter.h"
#include "base/script/TemporaryFileName.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = boost::filesystem;

std::set<std::string> namesIn(const fs::path& folder)
{
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

// The id of a process that has ended and been reaped.
pid_t endedProcess()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    int status = 0;
    ::waitpid(child, &status, 0);
    return child;
}

// A file of `name` in `folder`, modified long before this process started when `old`.
void leave(const fs::path& folder, const std::string& name, bool old)
{
    std::ofstream((folder / name).string()) << "half";
    if (old)
        fs::last_write_time(folder / name, 946684800);
}

} // namespace

TEST(AtomicFileWriter, TemporaryNamesSayTheirTargetAndWriter)
{
    const fs::path target = fs::path("out") / "model.vrk";
    const fs::path temporary = VRK::TemporaryFileName::beside(target);
    EXPECT_EQ(temporary.parent_path(), fs::path("out"));
    const std::string prefix = ".model.vrk." + std::to_string(::getpid()) + ".";
    EXPECT_EQ(temporary.filename().string().substr(0, prefix.size()), prefix);
    EXPECT_EQ(VRK::TemporaryFileName::writerOf(temporary, target), ::getpid());
    EXPECT_NE(VRK::TemporaryFileName::beside(target), temporary);

    for (const char* other : {".model.vrk.12.0123abcd.tmp.x", ".model.vrk.0123abcd.tmp",
                              ".model.vrk.x12.0123abcd.tmp", ".model.vrk.12.0123abcz.tmp",
                              ".model.vrk.12.0123abc.tmp", ".model.vrk..0123abcd.tmp",
                              ".model.vr.12.0123abcd.tmp", ".model.vrkk.12.0123abcd.tmp",
                              "model.vrk.12.0123abcd.tmp", ".model.vrk.99999999999.0123abcd.tmp"})
        EXPECT_EQ(VRK::TemporaryFileName::writerOf(other, target), 0) << other;
    EXPECT_EQ(VRK::TemporaryFileName::writerOf(".model.vrk.12.0123abcd.tmp", target), 12);

    // A name at the file system's limit still says both.
    const fs::path longTarget = std::string(250, 'n') + ".vrk";
    const fs::path longTemporary = VRK::TemporaryFileName::beside(longTarget);
    EXPECT_LE(longTemporary.filename().string().size(), 255u);
    EXPECT_EQ(VRK::TemporaryFileName::writerOf(longTemporary, longTarget), ::getpid());
}

// A write removes what a killed writer of the same file left, and only that.
TEST(AtomicFileWriter, RemovesStaleTemporariesOfItsTargetOnly)
{
    const fs::path folder = fs::temp_directory_path() / fs::unique_path("vrk-stale-%%%%%%");
    fs::create_directories(folder);
    const std::string gone = std::to_string(endedProcess());
    const std::string running = std::to_string(::getppid());
    const std::string stale = ".model.vrk." + gone + ".0123abcd.tmp";
    leave(folder, stale, true);
    const std::set<std::string> kept = {
        ".model.vrk." + running + ".0123abcd.tmp", // its writer still runs
        ".model.vrk." + gone + ".4567abcd.tmp",    // made since this process started
        ".other.vrk." + gone + ".0123abcd.tmp",     // another target's
        ".model.vrk.0123abcd.tmp",                 // its writer unknown
    };
    for (const std::string& name : kept)
        leave(folder, name, name.find(".4567abcd.") == std::string::npos);

    std::set<std::string> during;
    VRK::AtomicFileWriter::write(folder / "model.vrk",
                                 [&](std::ostream& out) {
                                     during = namesIn(folder);
                                     out << "whole";
                                 });
    std::set<std::string> expected = kept;
    expected.insert("model.vrk");
    EXPECT_EQ(namesIn(folder), expected);
    EXPECT_EQ(during.count(stale), 0u);
    EXPECT_EQ(during.size(), kept.size() + 1);
    fs::remove_all(folder);
}
