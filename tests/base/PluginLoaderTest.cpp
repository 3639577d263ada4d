#include "base/plugin/PluginLoader.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace fs = boost::filesystem;

namespace {

struct PluginFolder {
    PluginFolder() : path(fs::temp_directory_path() / fs::unique_path("vrk-plugins-%%%%%%"))
    {
        fs::create_directories(path);
    }
    ~PluginFolder() { fs::remove_all(path); }
    fs::path path;
};

} // namespace

TEST(PluginLoader, ReportsBrokenPluginsByPathAndLoadsTheOthers)
{
    PluginFolder folder;
    std::ofstream((folder.path / "libBroken.so").string()) << "not a library";
    // A real library without the entry point its name promises.
    fs::copy_file(VRK_TEST_GOOD_PLUGIN, folder.path / "libNoEntry.so");
    fs::copy_file(VRK_TEST_GOOD_PLUGIN, folder.path / "libTestGood.so");
    std::ofstream((folder.path / "notes.txt").string()) << "not a plugin";

    VRK::PluginLoader loader;
    loader.loadAll({folder.path});

    ASSERT_EQ(loader.getPlugins().size(), 1u);
    EXPECT_EQ(loader.getPlugins()[0].getName(), "TestGood");
    ASSERT_EQ(loader.getFailures().size(), 2u);
    for (const auto& failure : loader.getFailures())
        EXPECT_EQ(failure.rfind(folder.path.string(), 0), 0u) << failure;
    EXPECT_NE(loader.getFailures()[0].find("libBroken.so: "), std::string::npos);
    EXPECT_NE(loader.getFailures()[1].find("registerNoEntryPlugin"), std::string::npos);
}

TEST(PluginLoader, SearchPathPrefersTheExplicitFolderThenTheEnvironment)
{
    EXPECT_EQ(VRK::PluginLoader::searchPath("/opt/p"), std::vector<fs::path>{"/opt/p"});
    ::setenv("VRK_PLUGIN_PATH", "/a::/b", 1);
    EXPECT_EQ(VRK::PluginLoader::searchPath(""), (std::vector<fs::path>{"/a", "/b"}));
    ::unsetenv("VRK_PLUGIN_PATH");
    EXPECT_EQ(VRK::PluginLoader::searchPath("").size(), 1u);
}
