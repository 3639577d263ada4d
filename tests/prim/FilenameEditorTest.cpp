#include "base/error/IllegalDataException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/script/Script.h"
#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/files/FolderType.h"
#include "plugins/prim/files/WorkdirData.h"
#include "plugins/prim/files/WorkdirType.h"
#include "tests/support/LogCapture.h"

#include <boost/filesystem/operations.hpp>

#include <gtest/gtest.h>

#include <sstream>

namespace {

namespace fs = boost::filesystem;

// A container that publishes a work directory to its contents when it runs, as a
// Workdir functor does; with no directory it publishes nothing.
class WorkdirProbe : public VRK::ContainerFunctor {
public:
    explicit WorkdirProbe(boost::optional<fs::path> workdir)
        : ContainerFunctor("WorkdirProbe", "Publishes a work directory", nullptr),
          workdir_(std::move(workdir))
    {
        addInternalOutputPort("workdir", "", Prim::WorkdirType::getInstance());
    }
    void runImpl() override
    {
        ++runs;
        if (workdir_)
            setInternalOutputPortValue<Prim::WorkdirType>("workdir", *workdir_);
        ContainerFunctor::runImpl();
    }
    int runs = 0;

private:
    boost::optional<fs::path> workdir_;
};

// A functor that reads a folder, with the "workdir" input of such functors.
class FolderReaderProbe : public VRK::Functor {
public:
    FolderReaderProbe() : Functor("FolderReaderProbe", "Reads a folder", nullptr)
    {
        addInputPort("folder", "", Prim::FolderType::getInstance(), false);
        addInputPort("workdir", "", Prim::WorkdirType::getInstance(), true);
    }
    void runImpl() override {}
    Prim::FolderEditor& editor()
    {
        return dynamic_cast<Prim::FolderEditor&>(*getInputPort("folder")->getDataEditor());
    }
};

// A script holding `reader` inside a container that publishes `workdir`.
struct Model {
    explicit Model(boost::optional<fs::path> workdir, bool inScript = true)
        : container(std::make_shared<WorkdirProbe>(std::move(workdir))),
          reader(std::make_shared<FolderReaderProbe>())
    {
        if (inScript)
            script.addFunctor(container, true);
        container->addFunctor(reader, true);
        reader->getInputPort("workdir")->bind(container->getInternalOutputPort("workdir"));
    }
    VRK::Script script;
    std::shared_ptr<WorkdirProbe> container;
    std::shared_ptr<FolderReaderProbe> reader;
};

std::string printed(const VRK::Stringable& object)
{
    std::ostringstream out;
    object.toStream(out, 0);
    return out.str();
}

} // namespace

TEST(FolderEditor, IdentityAndAcceptedExtensions)
{
    Prim::FolderEditor editor;
    EXPECT_EQ(editor.getName(), "FolderEditor");
    EXPECT_EQ(editor.getType(), Prim::FolderType::getInstance());
    EXPECT_EQ(editor.getAlias(), "folder");
    EXPECT_EQ(editor.getDefaultFilename(), "");
    EXPECT_TRUE(editor.isExtensionAccepted(""));
    EXPECT_TRUE(editor.isExtensionAccepted("."));
    EXPECT_TRUE(editor.isExtensionAccepted(".zip"));
    EXPECT_FALSE(editor.isExtensionAccepted(".txt"));
    EXPECT_FALSE(editor.isExtensionAccepted(".ZIP"));

    Prim::FolderViewer viewer;
    EXPECT_EQ(viewer.getName(), "FolderViewer");
}

TEST(FolderEditor, SetsNormalisesPrintsAndPacks)
{
    Prim::FolderEditor editor;
    try {
        editor.setFilename("", true);
        ADD_FAILURE() << "an empty folder was accepted";
    } catch (const VRK::IllegalDataException& exception) {
        EXPECT_EQ(exception.getMessage(), "The folder \"\" is not valid.");
    }

    editor.setFilename("//:out\\reports", true);
    EXPECT_EQ(editor.getFilename(), "out/reports");
    EXPECT_EQ(editor.getRelativeFilename(), "out/reports");
    EXPECT_EQ(printed(editor), "\"out/reports\"");

    editor.packData();
    Prim::FolderViewer viewer;
    viewer.setDataPtr(editor.getDataPtr());
    EXPECT_EQ(viewer.getFilename().getRelativeFilename(), "out/reports");

    Prim::FolderEditor copy;
    copy.unpackData(editor.getData());
    EXPECT_EQ(copy.getFilename(), "out/reports");
}

TEST(FolderEditor, WithoutAWorkdirNamesStayAsGiven)
{
    Prim::FolderEditor loose;
    loose.setFilename("/data/maps", false);
    loose.prepare();
    EXPECT_EQ(loose.getWorkdir(), "");
    EXPECT_EQ(loose.getFullFilename(), "/data/maps");

    FolderReaderProbe reader;
    reader.editor().setFilename("/data/maps", false);
    reader.preparePorts();
    EXPECT_EQ(reader.editor().getWorkdir(), "") << "an unbound \"workdir\" input means no workdir";
    EXPECT_FALSE(reader.editor().getWorkdirPath());
}

TEST(FolderEditor, FindsTheWorkdirThroughALightRun)
{
    const fs::path work = fs::temp_directory_path() / "prim-workdir";
    Model model{boost::optional<fs::path>(work)};
    Prim::FolderEditor& editor = model.reader->editor();
    editor.setFilename("reports", true);
    model.reader->preparePorts();

    EXPECT_EQ(model.container->runs, 1);
    EXPECT_EQ(editor.getWorkdir(), work.string());
    EXPECT_EQ(editor.getFullFilename(), (work / "reports").string());
    EXPECT_EQ(editor.getRelativeFilename(), "reports");

    // Once the directory is there, preparing again does not run the container again.
    model.reader->preparePorts();
    EXPECT_EQ(model.container->runs, 1);
}

TEST(FolderEditor, RelativeWorkdirsAreMadeComplete)
{
    Model model{boost::optional<fs::path>(fs::path("rel/dir"))};
    model.reader->editor().setFilename("x", true);
    model.reader->preparePorts();
    EXPECT_EQ(model.reader->editor().getWorkdir(), fs::system_complete("rel/dir").string());
}

TEST(FolderEditor, AWorkdirThatCannotBeProducedIsUnknown)
{
    Model model{boost::none};
    Prim::FolderEditor& editor = model.reader->editor();
    editor.setFilename("reports", true);
    const std::string full = editor.getFullFilename();
    model.reader->preparePorts();
    EXPECT_EQ(model.container->runs, 1);
    EXPECT_EQ(editor.getWorkdir(), " The work directory is unknown !");
    EXPECT_EQ(editor.getFullFilename(), full) << "an unknown workdir keeps the full filename";
}

TEST(FolderEditor, DiscoveryErrorsAreLoggedAndLeaveThePreviousWorkdir)
{
    Model model{boost::optional<fs::path>(fs::path("/w")), false};
    Prim::FolderEditor& editor = model.reader->editor();
    editor.setFilename("/data/maps", false);
    VRK::Testing::LogCapture capture;
    EXPECT_FALSE(editor.updateWorkdir());
    EXPECT_EQ(editor.getWorkdir(), "");
    EXPECT_EQ(model.container->runs, 0);
    const auto lines = capture.lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), "FolderEditor: Exception ignored trying to retrieve workdir:"
                            "The \"Workdir\" functor is not part of a script.");
}
