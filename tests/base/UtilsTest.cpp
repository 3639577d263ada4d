#include "base/util/DirectoryStack.h"
#include "base/util/LineBuffer.h"
#include "base/util/NameUtils.h"
#include "base/util/PathUtils.h"
#include "base/util/Properties.h"
#include "base/util/StringUtils.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <fstream>

namespace fs = boost::filesystem;
using VRK::Boost::PathUtils;

TEST(NameUtils, AcceptsIdentifiersOnly)
{
    for (const char* name : {"For", "_x", "MuxValue2", "a_b_c"})
        EXPECT_TRUE(VRK::NameUtils::isValidName(name)) << name;
    for (const char* name : {"", "2For", "Map Algebra", "x-y", "a.b", "é"})
        EXPECT_FALSE(VRK::NameUtils::isValidName(name)) << name;
}

TEST(StringUtils, ReplaceAllDoesNotRescanReplacements)
{
    std::string text = "say \"hi\" \"";
    VRK::StringUtils::replaceAll(text, "\"", "\\\"");
    EXPECT_EQ(text, "say \\\"hi\\\" \\\"");
    std::string same = "abc";
    VRK::StringUtils::replaceAll(same, "", "x");
    EXPECT_EQ(same, "abc");
    std::string grow = "aaa";
    VRK::StringUtils::replaceAll(grow, "a", "aa");
    EXPECT_EQ(grow, "aaaaaa");
}

TEST(PathUtils, RelativePathJoinedToItsDirectoryNamesTheFile)
{
    const std::pair<const char*, const char*> cases[] = {
        {"/data/model", "/data/model/maps/a.txt"},
        {"/data/model", "/data/other/b.txt"},
        {"/data/model/", "/data/model/c.txt"},
        {"/data/./model", "/data/model/../x/d.txt"},
        {"/", "/etc/e.txt"},
    };
    for (const auto& [directory, file] : cases) {
        fs::path relative = PathUtils::getRelativePath(directory, file);
        EXPECT_FALSE(relative.is_absolute()) << relative;
        EXPECT_EQ((fs::path(directory) / relative).lexically_normal(), fs::path(file).lexically_normal())
            << directory << " + " << relative;
    }
    VRK::DirectoryStack inside("/data/model");
    EXPECT_EQ(PathUtils::getRelativePath("/data/model/f.txt"), fs::path("f.txt"));
}

TEST(PathUtils, GeneratePathPadsTheStepBeforeTheExtension)
{
    EXPECT_EQ(PathUtils::generatePath("out/report", 3, 7, ".txt"), fs::path("out/report007.txt"));
    EXPECT_EQ(PathUtils::generatePath("r", 2, 0, ".map"), fs::path("r00.map"));
    EXPECT_EQ(PathUtils::generatePath("r", 2, 1234, ""), fs::path("r1234"));
    EXPECT_EQ(PathUtils::generatePath("r", 0, 5, ".x"), fs::path("r5.x"));
    EXPECT_EQ(PathUtils::changeExtension("a/b.txt", ""), fs::path("a/b"));
    EXPECT_EQ(PathUtils::changeExtension("a/b.txt", ".csv"), fs::path("a/b.csv"));
}

TEST(PathUtils, ReadAndWriteChecksFollowTheFileSystem)
{
    fs::path folder = fs::temp_directory_path() / fs::unique_path("vrk-paths-%%%%%%");
    fs::create_directories(folder);
    fs::path file = folder / "present.txt";
    std::ofstream(file.string()) << "x";
    EXPECT_TRUE(PathUtils::canReadPath(file));
    EXPECT_FALSE(PathUtils::canReadPath(folder / "absent.txt"));
    EXPECT_TRUE(PathUtils::canWritePath(file));
    EXPECT_TRUE(PathUtils::canWritePath(folder / "new.txt"));
    EXPECT_FALSE(PathUtils::canWritePath(folder / "no-such-folder" / "new.txt"));
    EXPECT_FALSE(PathUtils::canWritePath(folder));
    fs::remove_all(folder);
}

TEST(LineBuffer, GivesLinesFromOneWithoutBreaks)
{
    VRK::LineBuffer buffer("first\r\nsecond\n\nfourth");
    EXPECT_EQ(buffer.getLine(1), "first");
    EXPECT_EQ(buffer.getLine(2), "second");
    EXPECT_EQ(buffer.getLine(3), "");
    EXPECT_EQ(buffer.getLine(4), "fourth");
    EXPECT_EQ(buffer.getLine(0), "");
    EXPECT_EQ(buffer.getLine(5), "");
    EXPECT_EQ(buffer.getLineCount(), 4u);
    EXPECT_EQ(VRK::LineBuffer("end\n").getLineCount(), 2u);
    EXPECT_EQ(VRK::LineBuffer("").getLineCount(), 1u);
}

TEST(Properties, KeepOrderAndHonourOverwrite)
{
    VRK::Properties properties;
    properties.setProperty("comment", "one");
    properties.setProperty("author", "me");
    properties.setProperty("comment", "two", false);
    EXPECT_EQ(properties.getPropertyValue("comment"), "one");
    properties.setProperty("comment", "three");
    EXPECT_EQ(properties.getPropertyValue("comment"), "three");
    EXPECT_FALSE(properties.hasProperty("missing"));
    EXPECT_EQ(properties.getPropertyValue("missing"), "");
    ASSERT_EQ(properties.getAll().size(), 2u);
    EXPECT_EQ(properties.getAll()[0].first, "comment");
}

#include "base/util/Propertiable.h"
#include "base/util/PropertyUtils.h"

TEST(PropertyUtils, MapsOldPropertyNamesOnly)
{
    std::string name = "untouched";
    EXPECT_TRUE(VRK::PropertyUtils::findPropertyByAlias(name, "note"));
    EXPECT_EQ(name, VRK::FUNCTOR_COMMENT_PROPERTY_NAME);
    name = "untouched";
    EXPECT_FALSE(VRK::PropertyUtils::findPropertyByAlias(name, "comment"));
    EXPECT_EQ(name, "untouched");
}
