#include "base/util/DirectoryStack.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "tests/support/LogCapture.h"

#include <boost/filesystem/operations.hpp>

#include <gtest/gtest.h>

namespace {

namespace fs = boost::filesystem;
using Prim::CompoundFilename;
using Workdir = CompoundFilename::Workdir;

// A fresh folder that also stands as the current directory of relative filenames.
class CompoundFilenameTest : public ::testing::Test {
protected:
    CompoundFilenameTest()
        : root_(fs::temp_directory_path() / fs::unique_path("prim-filename-%%%%-%%%%")),
          created_(fs::create_directories(root_ / "work")), current_(root_)
    {
    }
    ~CompoundFilenameTest() override { fs::remove_all(root_); }

    const fs::path root_;
    const bool created_;
    VRK::DirectoryStack current_;
};

} // namespace

TEST_F(CompoundFilenameTest, WithoutWorkdirRelativeNamesResolveAgainstTheCurrentDirectory)
{
    CompoundFilename filename("data/in.txt", Workdir(), false);
    EXPECT_EQ(filename.getFullFilename(), root_ / "data/in.txt");
    EXPECT_TRUE(filename.getRelativeFilename().empty());
    EXPECT_EQ(filename.getFilename(), "in.txt");
    EXPECT_EQ(filename.getExtension(), ".txt");

    // Updating again without a work directory keeps the file where it is.
    EXPECT_EQ(filename.getFullFilename(Workdir()), root_ / "data/in.txt");
    EXPECT_EQ(filename.getFullFilename(Workdir()), root_ / "data/in.txt");

    // A new name without a work directory forgets any earlier relative form.
    CompoundFilename reused("old.txt", Workdir(), true);
    reused.setFilename("new.txt", Workdir(), false);
    EXPECT_EQ(reused.getFullFilename(Workdir()), root_ / "new.txt");
}

TEST_F(CompoundFilenameTest, DelayedNamesFollowTheWorkdirKnownLater)
{
    CompoundFilename filename("maps/land.map", Workdir(), true);
    EXPECT_EQ(filename.getRelativeFilename(), "maps/land.map");
    EXPECT_EQ(filename.getFullFilename(), root_ / "maps/land.map");

    const fs::path work = root_ / "work";
    fs::path full;
    fs::path relative;
    filename.getFullAndRelativeFilenames(full, relative, Workdir(work));
    EXPECT_EQ(full, work / "maps/land.map");
    EXPECT_EQ(relative, "maps/land.map");

    // Leaving every work directory: the name is settled against the current directory.
    EXPECT_EQ(filename.getFullFilename(Workdir()), root_ / "maps/land.map");
    EXPECT_TRUE(filename.getRelativeFilename().empty());
}

TEST_F(CompoundFilenameTest, AnEmptyWorkdirKeepsOnlyTheRelativeForm)
{
    CompoundFilename filename("out/result.csv", Workdir(fs::path()), false);
    EXPECT_TRUE(filename.getFullFilename().empty());
    EXPECT_EQ(filename.getRelativeFilename(), "out/result.csv");
    EXPECT_EQ(filename.getFilename(), "result.csv");
    EXPECT_EQ(filename.getExtension(), ".csv");

    // Updates while the work directory is still unknown keep the name for when it comes.
    for (int update = 0; update < 3; ++update)
        filename.updateFilenamesIfNecessary(Workdir(fs::path()));
    EXPECT_TRUE(filename.getFullFilename().empty());
    EXPECT_EQ(filename.getRelativeFilename(), "out/result.csv");

    EXPECT_EQ(filename.getFullFilename(Workdir(root_ / "work")), root_ / "work/out/result.csv");

    // A work directory that becomes unknown drops the relative form, keeping the file.
    EXPECT_TRUE(filename.getRelativeFilename(Workdir(fs::path())).empty());
    EXPECT_EQ(filename.getFullFilename(), root_ / "work/out/result.csv");
    EXPECT_EQ(filename.getRelativeFilename(Workdir(root_)), "work/out/result.csv");
}

TEST_F(CompoundFilenameTest, CompleteNamesWithAPlainWorkdir)
{
    const fs::path work = root_ / "work";
    const fs::path typed = root_ / "work/sub/../sub/x.txt";
    CompoundFilename filename(typed, Workdir(work), false);
    EXPECT_EQ(filename.getFullFilename(), typed) << "a complete input is kept as typed";
    EXPECT_EQ(filename.getRelativeFilename(), "sub/x.txt");
    EXPECT_EQ((work / filename.getRelativeFilename()), root_ / "work/sub/x.txt");

    CompoundFilename outside(root_ / "elsewhere/y.txt", Workdir(work), false);
    EXPECT_EQ(outside.getRelativeFilename(), "../elsewhere/y.txt");
    EXPECT_EQ((work / outside.getRelativeFilename()).lexically_normal(), root_ / "elsewhere/y.txt");
}

TEST_F(CompoundFilenameTest, ArchiveWorkdirsResolveBesideTheArchive)
{
    const fs::path archive = root_ / "work/bundle.zip";
    CompoundFilename filename("maps/land.map", Workdir(archive), false);
    EXPECT_EQ(filename.getFullFilename(), root_ / "work/maps/land.map");
    EXPECT_EQ(filename.getRelativeFilename(), "maps/land.map") << "no \"..\" out of the archive";

    CompoundFilename complete(root_ / "work/maps/river.map", Workdir(), false);
    EXPECT_EQ(complete.getRelativeFilename(Workdir(archive)), "maps/river.map");

    CompoundFilename delayed("../up/a.txt", Workdir(), true);
    EXPECT_EQ(delayed.getFullFilename(Workdir(archive)), root_ / "work/up/a.txt");
    EXPECT_EQ(delayed.getRelativeFilename(), "up/a.txt");
}

TEST_F(CompoundFilenameTest, CurrentDirectoryComponentsAreDropped)
{
    CompoundFilename trailing("data/in.txt/.", Workdir(), false);
    EXPECT_EQ(trailing.getFullFilename(), root_ / "data/in.txt");

    CompoundFilename leading("./data/./in.txt", Workdir(), true);
    EXPECT_EQ(leading.getRelativeFilename(), "data/in.txt");
    EXPECT_EQ(leading.getFullFilename(), root_ / "data/in.txt");

    CompoundFilename folder("reports/", Workdir(root_ / "work"), false);
    EXPECT_EQ(folder.getFullFilename(), root_ / "work/reports");
    EXPECT_EQ(folder.getFilename(), "reports");
}

TEST_F(CompoundFilenameTest, PrintedFormAndDebugLines)
{
    VRK::Testing::LogCapture capture;
    CompoundFilename filename("a.txt", Workdir(), true);
    filename.updateFilenamesIfNecessary(Workdir(root_ / "work"));
    const std::string full = (root_ / "work/a.txt").string();
    const std::vector<std::string> expected = {
        "Defining internal filenames: input filename=\"a.txt\", workdir=\"<unknown>\", "
        "delay=true",
        "All internal filenames successfully defined: relative filename=\"a.txt\", "
        "full filename=\""
            + (root_ / "a.txt").string() + "\"",
        "Updating internal filenames: relative filename=\"a.txt\", full filename=\""
            + (root_ / "a.txt").string() + "\", workdir=\"" + (root_ / "work").string() + "\"",
        "All internal filenames successfully updated: relative filename=\"a.txt\", "
        "full filename=\""
            + full + "\"",
    };
    EXPECT_EQ(capture.lines(), expected);
    EXPECT_EQ(filename.toString(),
              "CompoundFilename { relative filename=\"a.txt\", full filename=\"" + full + "\"}");

    VRK::Testing::LogCapture quiet(VRK::info);
    CompoundFilename silent("b.txt", Workdir(), false);
    EXPECT_TRUE(quiet.lines().empty());
}
