#include "base/data/BaseType.h"
#include "base/error/Exception.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/HookFunctor.h"
#include "base/script/Script.h"
#include "base/script/text/DefaultScriptReader.h"
#include "base/task/Task.h"
#include "plugins/prim/environment/PrimEnvironmentUtils.h"
#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/files/PathData.h"
#include "plugins/prim/values/texts/StringData.h"
#include "plugins/prim/values/texts/StringEditor.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PrimRegistration.h"
#include "tests/support/RegistratorDeclaration.h"
#include "tests/support/ScriptText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using VRK::Testing::LogCapture;

class Registrators : public ::testing::Test {
protected:
    void SetUp() override { VRK::Testing::registerPrimOnce(); }

    std::shared_ptr<VRK::Script> read(const std::string& text)
    {
        return VRK::Testing::readScriptText<VRK::DefaultScriptReader>(text, "model.vrk");
    }

    void run(VRK::Script& script)
    {
        VRK::Task task;
        script.run(task, "SequentialFunctorScheduler");
    }

    // The message that running `text` fails with.
    std::string failure(const std::string& text)
    {
        try {
            run(*read(text));
        } catch (const VRK::Exception& error) {
            return error.getMessage();
        }
        return "no failure";
    }

    template <class DataT>
    static typename DataT::ValueType output(const VRK::Script& script, const std::string& alias,
                                            const std::string& port)
    {
        const VRK::Functor* functor = script.findFunctorByAlias(alias);
        EXPECT_NE(functor, nullptr) << alias;
        return dynamic_cast<const DataT&>(functor->getOutputPort(port)->getData()).getValue();
    }

    static VRK::ContainerFunctor& container(const VRK::Script& script, const std::string& alias)
    {
        return dynamic_cast<VRK::ContainerFunctor&>(*script.findFunctorByAlias(alias));
    }

    // What `selector` picks, by its output `port`, for each step from 1 to 6.
    std::vector<std::string> picks(const std::string& selector, const std::string& port,
                                   const std::string& contents)
    {
        std::vector<std::string> picked;
        for (int step = 1; step <= 6; ++step) {
            auto script = read("s := " + selector + " step = " + std::to_string(step) + " {"
                               + contents + "}");
            try {
                run(*script);
            } catch (const VRK::Exception& error) {
                picked.push_back(error.getMessage());
                continue;
            }
            if (port == "string")
                picked.push_back(output<Prim::StringData>(*script, "s", port));
            else if (port == "folder")
                picked.push_back(
                    output<Prim::FolderData>(*script, "s", port).getFilename().string());
            else
                picked.push_back(output<Prim::PathData>(*script, "s", port).string());
        }
        return picked;
    }
};

TEST_F(Registrators, DeclareTheirTypesPortsAndFlags)
{
    using Case = VRK::Testing::RegistratorDeclaration;
    for (const Case& c : {
             Case{"NumberValue",
                  "NumberedValueRegistrator",
                  "Identify a value by assigning a number to it.",
                  {"value Double Any value.", "valueNumber PositiveInt Value number identifier."}},
             Case{"NumberString",
                  "NumberedStringRegistrator",
                  "Identify a string by assigning a number to it.",
                  {"value String Any value.", "valueNumber PositiveInt Value number identifier."}},
             Case{"NumberFolder",
                  "NumberedFolderRegistrator",
                  "Identify a folder by assigning a number to it.",
                  {"value Folder Any value.", "valueNumber PositiveInt Value number identifier."}},
             Case{"NameValue",
                  "NamedValueRegistrator",
                  "Identify a value by assigning a name to it.",
                  {"value Double Value.", "valueName Name Value name identifier."}},
             Case{"NumberPath",
                  "NumberedPathRegistrator",
                  "Identify a filename by assigning a number to it.",
                  {"filename Path Any filename.",
                   "filenameNumber PositiveInt Map filename number identifier."}},
         }) {
        VRK::Script script;
        VRK::Functor& functor = *script.createFunctor(c.name, true);
        VRK::Testing::expectDeclared(functor, c);
        const bool passive = std::string(c.name) == "NumberPath";
        EXPECT_EQ(functor.getFlag(VRK::FunctorFlags::PassiveRegistrator), passive) << c.name;
        EXPECT_EQ(dynamic_cast<VRK::HookFunctor*>(&functor) == nullptr, passive) << c.name;
    }
}

TEST_F(Registrators, BannersShowKeyAndTypedInValue)
{
    auto script =
        read("a := NumberValue value = 2.5 valueNumber = 3;"
             "b := NumberString value = \"dry\" valueNumber = 1;"
             "c := NumberFolder value = \"inputs\" valueNumber = 2;"
             "d := NameValue value = 1234567 valueName = \"rate\";"
             "e := NumberValue value = 0.1234567 valueNumber = 4;"
             "x := Double constant = 3; f := NumberValue value = x.object valueNumber = 5;");
    EXPECT_EQ(script->findFunctorByAlias("a")->getBanner(), "Value #3 is 2.5");
    EXPECT_EQ(script->findFunctorByAlias("b")->getBanner(), "Value #1 is \"dry\"");
    // Without a work directory the folder is known by its full form.
    VRK::Functor& folder = *script->findFunctorByAlias("c");
    const auto& editor =
        dynamic_cast<Prim::FolderEditor&>(*folder.getInputPort("value")->getDataEditor());
    EXPECT_EQ(folder.getBanner(), "Value #2 is \"" + editor.getFilename() + "\"");
    EXPECT_EQ(editor.getCompoundFilename().getFilename(), "inputs");
    EXPECT_EQ(script->findFunctorByAlias("d")->getBanner(), "Name \"rate\"");
    EXPECT_EQ(script->findFunctorByAlias("e")->getBanner(), "Value #4 is 0.123457");
    // A bound value is not known before the run.
    EXPECT_EQ(script->findFunctorByAlias("f")->getBanner(), "Value #5");

    VRK::Functor& number = *script->findFunctorByAlias("a");
    number.getInputPort("valueNumber")->setDataEditor(nullptr);
    EXPECT_FALSE(number.hasBanner());
    EXPECT_EQ(number.getBanner(), "Value <undefined> is 2.5");
    VRK::Functor& name = *script->findFunctorByAlias("d");
    name.getInputPort("valueName")->setDataEditor(nullptr);
    EXPECT_EQ(name.getBanner(), "Name <undefined>");

    VRK::Functor& text = *script->findFunctorByAlias("b");
    text.getInputPort("valueNumber")->setDataEditor(std::make_shared<Prim::StringEditor>());
    try {
        text.getBanner();
        ADD_FAILURE() << "a foreign editor is refused";
    } catch (const VRK::Exception& error) {
        EXPECT_EQ(error.getMessage(), "Unable to convert the editor of input port "
                                      "\"valueNumber\" to PositiveIntEditor");
    }
}

TEST_F(Registrators, EnvironmentsKeepTheFirstOfTwoEqualKeys)
{
    auto script = read("g := Group { NumberValue value = 1.5 valueNumber = 1;"
                       "  NameValue value = 0.1 valueName = \"rate\";"
                       "  NumberValue value = 2.5 valueNumber = 2;"
                       "  NameValue value = 9 valueName = \"v2\"; }"
                       "twice := Group { NumberValue value = 1 valueNumber = 2;"
                       "  NumberValue value = 7 valueNumber = 2; }"
                       "empty := Group { }");
    run(*script);

    std::map<int, double> numbered;
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment(numbered, container(*script, "g"));
    EXPECT_EQ(numbered, (std::map<int, double>{{1, 1.5}, {2, 2.5}}));
    std::map<std::string, double> named;
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment(named, container(*script, "g"));
    EXPECT_EQ(named, (std::map<std::string, double>{{"rate", 0.1}, {"v2", 9}}));

    // Numbered values share the map of named ones as "v1", "v2" ..., where "v2" clashes.
    run(*script);
    std::map<std::string, double> shared;
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment2(shared, container(*script, "g"));
    EXPECT_EQ(shared, (std::map<std::string, double>{{"v1", 1.5}, {"v2", 2.5}}));
    try {
        Prim::PrimEnvironmentUtils::registerValuesInEnvironment(shared, container(*script, "g"));
        ADD_FAILURE() << "\"v2\" is registered twice";
    } catch (const VRK::Exception& error) {
        EXPECT_EQ(error.getMessage(), "The key \"v2\" is already in use by another hook functor.");
    }
    EXPECT_EQ(shared.at("v2"), 2.5);

    std::map<int, double> twice;
    EXPECT_THROW(
        Prim::PrimEnvironmentUtils::registerValuesInEnvironment(twice, container(*script, "twice")),
        VRK::Exception);
    EXPECT_EQ(twice, (std::map<int, double>{{2, 1}}));

    std::map<int, double> none;
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment(none, container(*script, "empty"));
    EXPECT_TRUE(none.empty());
}

TEST_F(Registrators, FlatteningNeedsEveryIndexFromOneWithoutGaps)
{
    const std::map<std::string, double> env = {{"v1", 10}, {"v2", 0.5}, {"v3", 30}};
    const auto name = [](int index) { return "v" + std::to_string(index); };
    std::vector<double> out;
    {
        LogCapture capture(VRK::debug);
        Prim::PrimEnvironmentUtils::flattenValueEnvironment(out, env, {1, 2}, name);
        EXPECT_EQ(capture.lines(),
                  (std::vector<std::string>{"User registered entities:", "==[ \"1\" ]== 10",
                                            "==[ \"2\" ]== 0.5"}));
    }
    EXPECT_EQ(out, (std::vector<double>{10, 0.5}));

    const auto failure = [&](const std::set<int>& indexes) {
        std::vector<double> values;
        try {
            Prim::PrimEnvironmentUtils::flattenValueEnvironment(values, env, indexes, name);
        } catch (const VRK::Exception& error) {
            return error.getMessage();
        }
        return std::string("no failure");
    };
    EXPECT_EQ(failure({1, 3}), "Index 3 used by expression must be changed to 2. Map, table and "
                               "value indexes must be sequential.");
    EXPECT_EQ(failure({2}), "Index 2 used by expression must be changed to 1. Map, table and "
                            "value indexes must be sequential.");
    EXPECT_EQ(failure({1, 2, 3, 4}), "Undefined key \"v4\" used by expression.");
}

TEST_F(Registrators, SelectorsPickTheGreatestNumberNotAboveTheStep)
{
    EXPECT_EQ(picks("SelectString", "string",
                    "NumberString value = \"five\" valueNumber = 5;"
                    "NumberString value = \"one\" valueNumber = 1;"),
              (std::vector<std::string>{"one", "one", "one", "one", "five", "five"}));
    EXPECT_EQ(picks("SelectFolder", "folder",
                    "NumberFolder value = \"in/three\" valueNumber = 3;"
                    "NumberFolder value = \"in/six\" valueNumber = 6;"),
              (std::vector<std::string>{"The entity corresponding to key 1 is not defined.",
                                        "The entity corresponding to key 2 is not defined.",
                                        "three", "three", "three", "six"}));
    EXPECT_EQ(picks("SelectPath", "filename",
                    "NumberPath filename = \"b.map\" filenameNumber = 2;"
                    "NumberPath filename = \"d.map\" filenameNumber = 4;"),
              (std::vector<std::string>{"The path corresponding to #1 is not defined.", "b.map",
                                        "b.map", "d.map", "d.map", "d.map"}));
    EXPECT_EQ(failure("SelectString step = 4 { }"),
              "The entity corresponding to key 4 is not defined.");
}

TEST_F(Registrators, SelectorsRefuseDuplicateNumbersAndForeignContents)
{
    EXPECT_EQ(failure("SelectFolder step = 4 { NumberFolder value = \"a\" valueNumber = 3;"
                      "  NumberFolder value = \"b\" valueNumber = 3; }"),
              "The key \"3\" is already in use by another hook functor.");
    EXPECT_EQ(failure("SelectPath step = 4 { NumberPath filename = \"a\" filenameNumber = 3;"
                      "  NumberPath filename = \"b\" filenameNumber = 3; }"),
              "The number \"3\" is already in use by another path.");

    VRK::Script script;
    std::map<std::string, VRK::Functor*> made;
    for (const char* name :
         {"SelectFolder", "SelectString", "SelectPath", "CreateString", "NumberFolder",
          "NumberString", "NumberPath", "NumberValue", "NameValue", "Group"})
        made[name] = script.createFunctor(name, true);
    const auto accepted = [&](const char* selector) {
        std::vector<std::string> names;
        for (const auto& entry : made)
            if (dynamic_cast<VRK::ContainerFunctor*>(made[selector])->isCompatible(entry.second))
                names.push_back(entry.first);
        return names;
    };
    EXPECT_EQ(accepted("SelectFolder"), std::vector<std::string>{"NumberFolder"});
    EXPECT_EQ(accepted("SelectString"), std::vector<std::string>{"NumberString"});
    EXPECT_EQ(accepted("SelectPath"), std::vector<std::string>{"NumberPath"});
    EXPECT_EQ(accepted("CreateString"), (std::vector<std::string>{"NumberString", "NumberValue"}));
}

TEST_F(Registrators, SelectPathLogsTheSeriesItPicksFrom)
{
    auto script = read("SelectPath step = 1 { NumberPath filename = \"z.map\" filenameNumber = 9;"
                       "  NumberPath filename = \"a.map\" filenameNumber = 1; }");
    LogCapture capture(VRK::debug);
    run(*script);
    const std::vector<std::string> lines = capture.lines();
    const auto heading = std::find(lines.begin(), lines.end(), "User registered map filenames:");
    ASSERT_NE(heading, lines.end());
    ASSERT_GE(lines.end() - heading, 3);
    EXPECT_EQ(heading[1], "==[ \"1\" ]== \"a.map\"");
    EXPECT_EQ(heading[2], "==[ \"9\" ]== \"z.map\"");
}

TEST_F(Registrators, CreateStringFillsItsFormatAndChecksAFixedOneBeforeTheRun)
{
    auto script = read("loop := For firstIterationStep = 7 lastIterationStep = 7 {"
                       "  name := CreateString format = \"<s1>_<v1,3>.txt\" {"
                       "    NumberValue value = loop.step valueNumber = 1;"
                       "    NumberString value = \"old\" valueNumber = 1;"
                       "    NumberString value = \"run\" valueNumber = 1; } }");
    run(*script);
    EXPECT_EQ(output<Prim::StringData>(*script, "name", "result"), "run_007.txt");

    auto fixed = read("s := String constant = \"never\";\n"
                      "Group {\n  String constant = s.object;\n"
                      "  CreateString format = \"<s1> <x2>\" { } }");
    try {
        fixed->verify();
        ADD_FAILURE() << "the format is checked before the run";
    } catch (const VRK::Exception& error) {
        EXPECT_EQ(error.getMessage(),
                  "Invalid token type 'x' in \"<x2>\", type must be string (s) or number (n).");
        EXPECT_EQ(error.getScriptPosition().line, 4);
        EXPECT_EQ(error.getScriptPosition().column, 3);
    }
    EXPECT_EQ(failure("f := String constant = \"<v1>\";"
                      "CreateString format = f.object { NumberString value = \"a\" valueNumber "
                      "= 1; }"),
              "Not enough numbered values for custom string.");
}

} // namespace
