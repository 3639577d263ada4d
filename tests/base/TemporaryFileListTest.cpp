#include "base/script/AtomicFileWriter.h"
#include "base/script/TemporaryFileList.h"

#include <boost/filesystem.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <vector>

namespace fs = boost::filesystem;

// What the signal handler removes: the files listed at that moment, and no other, even
// when more files are listed than the list holds.
TEST(TemporaryFileList, TheHandlerRemovesTheFilesListedNow)
{
    const fs::path folder = fs::temp_directory_path() / fs::unique_path("vrk_list_%%%%%%%%");
    fs::create_directories(folder);
    const auto make = [&](const std::string& name) {
        std::ofstream(fs::path(folder / name).string()) << "cells";
        return folder / name;
    };
    const fs::path done = make("done.tif");
    { const VRK::TemporaryFileList finished(done); }
    const fs::path listed = make("listed.tif");
    std::vector<std::unique_ptr<VRK::TemporaryFileList>> entries;
    entries.push_back(std::make_unique<VRK::TemporaryFileList>(listed));
    std::vector<fs::path> more;
    for (int k = 0; k < 20; ++k) {
        more.push_back(make("more" + std::to_string(k) + ".tif"));
        entries.push_back(std::make_unique<VRK::TemporaryFileList>(more.back()));
    }
    VRK::AtomicFileWriter::removeTemporaries();
    EXPECT_TRUE(fs::exists(done));
    EXPECT_FALSE(fs::exists(listed));
    // Beyond the list's room, a file goes on unlisted rather than failing.
    int left = 0;
    for (const fs::path& file : more)
        left += fs::exists(file);
    EXPECT_GT(left, 0);
    EXPECT_LT(left, 20);
    entries.clear();
    fs::remove_all(folder);
}
