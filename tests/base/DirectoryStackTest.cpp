#include "base/util/DirectoryStack.h"

#include <boost/filesystem/operations.hpp>

#include <gtest/gtest.h>

#include <fstream>

namespace fs = boost::filesystem;

namespace {

// A folder with a script's input in it, and a run's folder, both removed afterwards;
// the run's folder is unset again whatever the test does.
class DirectoryStackTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        top_ = fs::temp_directory_path() / fs::unique_path("vrk-dirs-%%%%%%");
        fs::create_directories(top_ / "model" / "data");
        std::ofstream(top_ / "model" / "in.txt") << "x";
    }
    void TearDown() override
    {
        VRK::DirectoryStack::setRunDirectory(fs::path());
        fs::remove_all(top_);
    }
    fs::path top_;
};

} // namespace

TEST_F(DirectoryStackTest, RelativeNamesLieInTheRunFolderUnlessTheyExistBesideTheScript)
{
    VRK::DirectoryStack beside(top_ / "model");
    // Without a run folder every name lies beside the script, existing or not.
    EXPECT_EQ(VRK::DirectoryStack::resolve("out.txt"), top_ / "model" / "out.txt");

    VRK::DirectoryStack::setRunDirectory(top_ / "run");
    EXPECT_EQ(VRK::DirectoryStack::resolve("in.txt"), top_ / "model" / "in.txt");
    EXPECT_EQ(VRK::DirectoryStack::resolve("data"), top_ / "model" / "data");
    EXPECT_EQ(VRK::DirectoryStack::resolve("out.txt"), top_ / "run" / "out.txt");
    EXPECT_EQ(VRK::DirectoryStack::resolve("data/out.txt"), top_ / "run" / "data" / "out.txt");

    VRK::DirectoryStack::setRunDirectory(fs::path());
    EXPECT_EQ(VRK::DirectoryStack::resolve("out.txt"), top_ / "model" / "out.txt");
}

TEST_F(DirectoryStackTest, ARelativeRunFolderIsTakenFromTheCurrentFolderWhenSet)
{
    const fs::path before = fs::current_path();
    fs::current_path(top_);
    VRK::DirectoryStack::setRunDirectory("run");
    fs::current_path(before);
    VRK::DirectoryStack beside(top_ / "model");
    EXPECT_EQ(VRK::DirectoryStack::resolve("out.txt"), top_ / "run" / "out.txt");
}
