#include "base/error/IllegalDataException.h"
#include "plugins/prim/formula/ImageExpressionData.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/formula/ImageExpressionReader.h"
#include "plugins/prim/formula/ImageExpressionWriter.h"
#include "tessaly/images/LeafNodes.h"
#include "tests/prim/ValueScan.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using namespace Prim;

// A number that counts how often a compilation asks it whether it needs the cell's
// place: once per compilation of the formula it is the root of.
class CountingValue : public Tessaly::Nodes::Value {
public:
    CountingValue() : Value(1) {}
    bool needsOwnCell() const override
    {
        ++asked;
        return false;
    }
    mutable int asked = 0;
};

std::string prepared(ImageExpressionEditor& editor)
{
    editor.prepare();
    return editor.getImageExpressionAsString();
}

std::string written(const ImageExpressionEditor& editor, int indent)
{
    std::ostringstream out;
    ImageExpressionWriter(&editor).write(out, indent);
    return out.str();
}

// The default that the owning functor gave, else 0, and a copy of the editor keeps it.
TEST(ImageExpressionEditorTest, PrepareGivesTheDefaultThatTheOwnerGave)
{
    ImageExpressionEditor plain;
    EXPECT_EQ(prepared(plain), "0");

    ImageExpressionEditor table;
    table.setDefaultFormula("%table[line]");
    ImageExpressionEditor copy(table);
    EXPECT_EQ(prepared(table), "%table[line]");
    EXPECT_EQ(prepared(copy), "%table[line]");
}

TEST(ImageExpressionEditorTest, TextIsReadWrittenAndRefusedWithoutLosingTheFormula)
{
    ImageExpressionEditor editor;
    editor.setDefaultFormula("#image");
    editor.setImageExpressionAsString("if  v1>2 then (v1-1)-(2-$r) else t1[/v1]");
    const std::string text = editor.getImageExpressionAsString();
    EXPECT_EQ(text, "if v1 > 2 then v1 - 1 - (2 - $r) else t1[/v1]");
    editor.prepare();
    EXPECT_EQ(editor.getImageExpressionAsString(), text) << "prepare replaced a set formula";

    for (const char* broken : {"v1 +", "", "t1 + 1", "v1 ]", "i0"}) {
        try {
            editor.setImageExpressionAsString(broken);
            ADD_FAILURE() << "\"" << broken << "\" was read";
        } catch (const VRK::IllegalDataException& error) {
            EXPECT_EQ(error.getMessage(), "Unable to parse a valid image calculation expression.")
                << broken;
        }
        EXPECT_EQ(editor.getImageExpressionAsString(), text) << broken;
    }

    const auto before = editor.getImageExpression();
    editor.setImageExpressionAsString(text);
    EXPECT_NE(editor.getImageExpression(), before);
    EXPECT_EQ(editor.getImageExpressionAsString(), text);

    editor.packData();
    ImageExpressionEditor copy;
    copy.unpackData(*editor.getDataPtr());
    EXPECT_EQ(copy.getImageExpression(), editor.getImageExpression());
}

TEST(ImageExpressionEditorTest, CompilesOncePerReplacement)
{
    ImageExpressionEditor editor;
    const auto root = std::make_shared<CountingValue>();
    const auto expression = std::make_shared<Tessaly::TopLevelImageExpression>(
        root, std::make_shared<Tessaly::ImageExpressionDictionary>(), false);

    editor.setImageExpression(expression);
    editor.compile();
    editor.compile();
    EXPECT_EQ(root->asked, 1);
    EXPECT_TRUE(expression->isCompiled());

    editor.setImageExpression(expression);
    editor.compile();
    editor.compile();
    EXPECT_EQ(root->asked, 2) << "setting the formula again did not ask for a compilation";

    editor.setBaseImageExpression(expression);
    editor.compile();
    EXPECT_EQ(root->asked, 3) << "setting it as the host's formula did not either";

    editor.setImageExpressionAsString("v1 * 2");
    editor.compile();
    EXPECT_TRUE(editor.getImageExpression()->isCompiled());
}

TEST(ImageExpressionWriterTest, PutsTheFormulaOneLevelDeeperThanItsBrackets)
{
    ImageExpressionEditor editor;
    editor.setImageExpressionAsString("max(v1,(2))");
    EXPECT_EQ(written(editor, 0), "[\n    max(v1, 2)\n]");
    EXPECT_EQ(written(editor, 2), "[\n            max(v1, 2)\n        ]");
}

template <class ScannerT>
class ImageExpressionReaderTest : public VRK::Testing::ValueReading<ScannerT>,
                                  public testing::Test {
};

using Scanners = ::testing::Types<VRK::ScriptScanner, VRK::PlainScanner>;
TYPED_TEST_SUITE(ImageExpressionReaderTest, Scanners);

// What the writer wrote, a reader of either kind reads back into the same formula.
TYPED_TEST(ImageExpressionReaderTest, ReadsWhatTheWriterWrote)
{
    ImageExpressionEditor editor;
    editor.setImageExpressionAsString("-v1 ^ 2 ? 0 + if $a <> 1 then t1[==?2] else i1[line, 0]");
    const std::string text = written(editor, 1);

    ImageExpressionEditor reread;
    EXPECT_EQ(this->template read<ImageExpressionReader>(reread, text + " ;"), " ;");
    EXPECT_EQ(reread.getImageExpressionAsString(), editor.getImageExpressionAsString());
}

TYPED_TEST(ImageExpressionReaderTest, RefusesAFormulaWithoutBracketsOrWithAnInnerMistake)
{
    const struct {
        const char* text;
        const char* message;
        int column;
    } cases[] = {
        {"v1 + 1", "Expecting an image expression enclosed by '[' and ']'.", 1},
        // The expectation covers the whole value: a missing "]" is reported at the "[".
        {"[ v1 + 1", "Expecting an image expression enclosed by '[' and ']'.", 1},
        {"[ v1 + ]", "Expecting an image subexpression.", 8},
        {"[ if v1 then 2 ]", "Expecting \"else\".", 16},
    };
    for (const auto& c : cases) {
        ImageExpressionEditor editor;
        SCOPED_TRACE(c.text);
        this->expectError(this->template readError<ImageExpressionReader>(editor, c.text),
                          c.message, c.column);
    }
}

} // namespace
