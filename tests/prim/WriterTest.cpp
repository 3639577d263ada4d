#include "base/util/DirectoryStack.h"
#include "plugins/prim/files/FilenameWriter.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/files/FolderReader.h"
#include "plugins/prim/files/FolderWriter.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/files/PathReader.h"
#include "plugins/prim/files/PathWriter.h"
#include "plugins/prim/values/keywords/BoolEditor.h"
#include "plugins/prim/values/keywords/BoolReader.h"
#include "plugins/prim/values/keywords/BoolWriter.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"
#include "plugins/prim/values/keywords/LogTagReader.h"
#include "plugins/prim/values/keywords/LogTagWriter.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"
#include "plugins/prim/values/numbers/DoubleReader.h"
#include "plugins/prim/values/numbers/DoubleWriter.h"
#include "plugins/prim/values/numbers/IntEditor.h"
#include "plugins/prim/values/numbers/IntReader.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"
#include "plugins/prim/values/numbers/IntSetReader.h"
#include "plugins/prim/values/numbers/IntSetWriter.h"
#include "plugins/prim/values/numbers/IntWriter.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"
#include "plugins/prim/values/numbers/NonNegativeIntReader.h"
#include "plugins/prim/values/numbers/NonNegativeIntWriter.h"
#include "plugins/prim/values/numbers/PercentEditor.h"
#include "plugins/prim/values/numbers/PercentReader.h"
#include "plugins/prim/values/numbers/PercentWriter.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"
#include "plugins/prim/values/numbers/PositiveIntReader.h"
#include "plugins/prim/values/numbers/PositiveIntWriter.h"
#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/NameReader.h"
#include "plugins/prim/values/texts/NameWriter.h"
#include "plugins/prim/values/texts/StringEditor.h"
#include "plugins/prim/values/texts/StringReader.h"
#include "plugins/prim/values/texts/StringWriter.h"
#include "tests/prim/ValueScan.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace Prim;

template <class WriterT>
std::string written(const VRK::DataEditor& editor)
{
    std::ostringstream out;
    WriterT(&editor).write(out, 0);
    return out.str();
}

// Values written and read back, through each scanner: what a script writer and a
// script reader do to every literal.
template <class ScannerT>
class WriterTest : public ::testing::Test, public VRK::Testing::ValueReading<ScannerT> {
protected:
    // Writes `from` and reads the text into `to`; returns what the reader left.
    template <class WriterT, template <class> class ReaderT>
    std::string roundTrip(const VRK::DataEditor& from, VRK::DataEditor& to)
    {
        return this->template read<ReaderT>(to, written<WriterT>(from));
    }
};

using Scanners = ::testing::Types<VRK::ScriptScanner, VRK::PlainScanner>;
TYPED_TEST_SUITE(WriterTest, Scanners);

TYPED_TEST(WriterTest, BoolIsWrittenYesOrNo)
{
    BoolEditor editor;
    BoolEditor back;
    EXPECT_EQ(written<BoolWriter>(editor), ".no");
    EXPECT_EQ((this->template roundTrip<BoolWriter, BoolReader>(editor, back)), "");
    EXPECT_FALSE(back.getBool());
    this->template read<BoolReader>(editor, ".true");
    EXPECT_EQ(written<BoolWriter>(editor), ".yes");
    EXPECT_EQ((this->template roundTrip<BoolWriter, BoolReader>(editor, back)), "");
    EXPECT_TRUE(back.getBool());
}

TYPED_TEST(WriterTest, NumbersUseTheStreamAsItIs)
{
    DoubleEditor real;
    real.setDouble(1.0 / 3.0);
    EXPECT_EQ(written<DoubleWriter>(real), "0.333333");
    std::ostringstream narrow;
    narrow.precision(3);
    DoubleWriter(&real).write(narrow, 0);
    EXPECT_EQ(narrow.str(), "0.333");
    std::ostringstream exact;
    exact.precision(std::numeric_limits<double>::max_digits10);
    DoubleWriter(&real).write(exact, 0);
    DoubleEditor back;
    EXPECT_EQ(this->template read<DoubleReader>(back, exact.str()), "");
    EXPECT_EQ(back.getDouble(), real.getDouble());
    real.setDouble(-2.5e-7);
    EXPECT_EQ((this->template roundTrip<DoubleWriter, DoubleReader>(real, back)), "");
    EXPECT_EQ(back.getDouble(), -2.5e-7);

    PercentEditor percent;
    PercentEditor percentBack;
    this->template read<PercentReader>(percent, "50%");
    EXPECT_EQ(written<PercentWriter>(percent), "0.5");
    EXPECT_EQ((this->template roundTrip<PercentWriter, PercentReader>(percent, percentBack)), "");
    EXPECT_DOUBLE_EQ(percentBack.getPercent(), 0.5);
}

TYPED_TEST(WriterTest, IntegersAreWrittenInDecimal)
{
    IntEditor integer;
    IntEditor integerBack;
    integer.setInt(std::numeric_limits<int>::min());
    EXPECT_EQ(written<IntWriter>(integer), "-2147483648");
    EXPECT_EQ((this->template roundTrip<IntWriter, IntReader>(integer, integerBack)), "");
    EXPECT_EQ(integerBack.getInt(), std::numeric_limits<int>::min());

    NonNegativeIntEditor nonNegative;
    NonNegativeIntEditor nonNegativeBack;
    nonNegativeBack.setNonNegativeInt(9);
    EXPECT_EQ(written<NonNegativeIntWriter>(nonNegative), "0");
    EXPECT_EQ((this->template roundTrip<NonNegativeIntWriter, NonNegativeIntReader>(
                  nonNegative, nonNegativeBack)),
              "");
    EXPECT_EQ(nonNegativeBack.getNonNegativeInt(), 0);

    PositiveIntEditor positive;
    PositiveIntEditor positiveBack;
    positive.setPositiveInt(2147483647);
    EXPECT_EQ(written<PositiveIntWriter>(positive), "2147483647");
    EXPECT_EQ(
        (this->template roundTrip<PositiveIntWriter, PositiveIntReader>(positive, positiveBack)),
        "");
    EXPECT_EQ(positiveBack.getPositiveInt(), 2147483647);
}

TYPED_TEST(WriterTest, StringQuotesAreProtected)
{
    StringEditor editor;
    StringEditor back;
    for (const std::string text : {R"(say "hi")", R"(C:\temp\n)", "", " \"\" "}) {
        editor.setString(text);
        EXPECT_EQ((this->template roundTrip<StringWriter, StringReader>(editor, back)), "")
            << text;
        EXPECT_EQ(back.getString(), text);
    }
    editor.setString(R"(say "hi")");
    EXPECT_EQ(written<StringWriter>(editor), R"("say \"hi\"")");
}

// Backslashes are written as they are, so a backslash before a quote, or at the end,
// changes what the reader sees.
TYPED_TEST(WriterTest, SomeStringsDoNotSurvive)
{
    StringEditor editor;
    StringEditor back;
    editor.setString(R"(ends in \)");
    EXPECT_EQ(written<StringWriter>(editor), R"("ends in \")");
    this->expectError(this->template readError<StringReader>(back, written<StringWriter>(editor)),
                      "Expecting a string enclosed by '\"'.", 1);

    // The escapes of the body are C's: "\x" must be followed by a small hexadecimal
    // number.
    for (const std::string text : {R"(C:\xml)", R"(\xFF)"}) {
        editor.setString(text);
        EXPECT_EQ(this->template readError<StringReader>(back, written<StringWriter>(editor))
                      .getMessage(),
                  "Expecting a string enclosed by '\"'.");
    }

    editor.setString(R"(a\"b)");
    EXPECT_EQ(written<StringWriter>(editor), R"("a\\"b")");
    EXPECT_EQ((this->template roundTrip<StringWriter, StringReader>(editor, back)), R"(b")");
    EXPECT_EQ(back.getString(), R"(a\\)");
}

TYPED_TEST(WriterTest, QuotedValuesAreWrittenBetweenQuotes)
{
    NameEditor name;
    NameEditor nameBack;
    name.setName("river_2");
    EXPECT_EQ(written<NameWriter>(name), "\"river_2\"");
    EXPECT_EQ((this->template roundTrip<NameWriter, NameReader>(name, nameBack)), "");
    EXPECT_EQ(nameBack.getName(), "river_2");

    PathEditor path;
    PathEditor pathBack;
    path.setPath(R"(maps\dem.tif)");
    EXPECT_EQ(written<PathWriter>(path), "\"maps/dem.tif\"");
    EXPECT_EQ((this->template roundTrip<PathWriter, PathReader>(path, pathBack)), "");
    EXPECT_EQ(pathBack.getPath(), path.getPath());

    // Without a work directory a folder is written relative to the current folder (the
    // folder a script is written to), and reads back as the same full path.
    FolderEditor folder;
    FolderEditor folderBack;
    folder.setFilename(R"(out\sub)", false);
    EXPECT_EQ(written<FolderWriter>(folder), "\"out/sub\"");
    EXPECT_EQ((this->template roundTrip<FolderWriter, FolderReader>(folder, folderBack)), "");
    EXPECT_EQ(folderBack.getFullFilename(), folder.getFullFilename());
    EXPECT_EQ(written<FilenameWriter>(folder), written<FolderWriter>(folder));
}

TYPED_TEST(WriterTest, LogTagsAreWrittenByKeyword)
{
    const std::vector<std::string> keywords = {".unconditional", ".error", ".warning",
                                               ".result",        ".info",  ".info2",
                                               ".debug",         ".debug2", ".trace"};
    LogTagEditor editor;
    LogTagEditor back;
    for (size_t level = 0; level < keywords.size(); ++level) {
        const auto tag = static_cast<VRK::LogTag>(level);
        editor.setLogTag(tag);
        EXPECT_EQ(written<LogTagWriter>(editor), keywords[level]);
        const std::string rest = this->template roundTrip<LogTagWriter, LogTagReader>(editor, back);
        // ".info2" and ".debug2" read back as their shorter siblings.
        if (tag == VRK::info2 || tag == VRK::debug2) {
            EXPECT_EQ(rest, "2");
            EXPECT_EQ(back.getLogTag(), tag - 1);
        } else {
            EXPECT_EQ(rest, "");
            EXPECT_EQ(back.getLogTag(), tag);
        }
    }
}

TYPED_TEST(WriterTest, IntSetsAreWrittenSorted)
{
    IntSetEditor editor;
    IntSetEditor back;
    EXPECT_EQ(written<IntSetWriter>(editor), "[]");
    // The empty set does not read back.
    this->expectError(this->template readError<IntSetReader>(back, written<IntSetWriter>(editor)),
                      "Expecting an integer.", 2);

    this->template read<IntSetReader>(editor, "[7, -1, 5, 7]");
    EXPECT_EQ(written<IntSetWriter>(editor), "[ -1, 5, 7 ]");
    EXPECT_EQ((this->template roundTrip<IntSetWriter, IntSetReader>(editor, back)), "");
    ASSERT_EQ(back.getIntCount(), 3u);
    EXPECT_EQ(back.getInt(0), -1);
    EXPECT_EQ(back.getInt(2), 7);
}

TEST(WriterDeathTest, WritersNeedTheirEditor)
{
    IntEditor wrong;
    EXPECT_DEATH(BoolWriter{nullptr}, "dataEditor != 0");
    EXPECT_DEATH(BoolWriter{&wrong}, "editor != 0");
    EXPECT_DEATH(FolderWriter{&wrong}, "editor != 0");
}

TEST(FilenameWriterTest, CopiesWriteTheirOwnEditor)
{
    FolderEditor first;
    FolderEditor second;
    VRK::DirectoryStack inData("/data");
    first.setFilename("one", false);
    second.setFilename("../elsewhere/two", false);
    FilenameWriter writer(&first);
    const FilenameWriter copy(writer);
    writer = FilenameWriter(&second);
    std::ostringstream out;
    copy.write(out, 0);
    writer.write(out << ' ', 0);
    EXPECT_EQ(out.str(), "\"one\" \"../elsewhere/two\"");
}

TEST(FilenameWriterTest, CompleteNamesStayAsWritten)
{
    VRK::DirectoryStack elsewhere("/data/scripts");
    FolderEditor folder;
    folder.setFilename("/etc", false);
    PathEditor path;
    path.setPath("/etc/hosts");
    std::ostringstream out;
    FilenameWriter(&folder).write(out, 0);
    PathWriter(&path).write(out << ' ', 0);
    EXPECT_EQ(out.str(), "\"/etc\" \"/etc/hosts\"");
}

} // namespace
