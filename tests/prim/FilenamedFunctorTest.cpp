#include "base/graph/ContainerFunctor.h"
#include "base/script/Script.h"
#include "base/script/ScriptBuilder.h"
#include "plugins/prim/files/FilenamedFunctor.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"
#include "plugins/prim/files/FolderType.h"
#include "plugins/prim/files/WorkdirType.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"
#include "tests/support/PrimRegistration.h"

#include <boost/filesystem/operations.hpp>

#include <gtest/gtest.h>

namespace {

namespace fs = boost::filesystem;
using Prim::FilenamedFunctor;

// A functor that writes into the folder it names, with the ports of such functors.
class FolderWriterProbe : public FilenamedFunctor {
public:
    FolderWriterProbe()
        : FilenamedFunctor(
            "FolderWriterProbe", "Writes into a folder", "folder", "workdir",
            [](VRK::Functor* functor, const std::string& folder, const std::string& digits,
               const std::string& step) {
                Prim::FilenamedFunctorVerifierAdapter::canWriteFile({""}, functor, folder, digits,
                                                                    step);
            },
            "suffixDigits", "step", nullptr)
    {
        addInputPort("folder", "", Prim::FolderType::getInstance(), false);
        addOptionalInputPort("suffixDigits", "", Prim::NonNegativeIntType::getInstance(), false, 0);
        addOptionalInputPort("step", "", Prim::NonNegativeIntType::getInstance(), true, 0);
        addInputPort("workdir", "", Prim::WorkdirType::getInstance(), true);
    }
    void runImpl() override {}
    Prim::FilenameEditor& editor() { return getFilenameEditor(); }
};

fs::path prepared(Prim::CompoundFilename filename, const boost::optional<Prim::WorkdirData>& workdir,
                  int digits, const boost::optional<Prim::NonNegativeIntData>& step)
{
    fs::path result;
    fs::path workdirOut;
    FilenamedFunctor::prepareFilename(result, workdirOut, filename, workdir, digits, step);
    return FilenamedFunctor::completeFilename(result, workdirOut);
}

TEST(FilenamedFunctor, MovesIntoAndOutOfAWorkdirRederiveTheRelativeFilename)
{
    VRK::Testing::registerPrimOnce();
    const fs::path work = fs::temp_directory_path() / "prim-filenamed";
    VRK::Script script;
    VRK::ScriptBuilder builder(script);
    VRK::Functor& workdir = builder.beginFunctor("Workdir", "w", VRK::ScriptPosition());
    VRK::ScriptBuilder::setValueText(*workdir.getInputPort("folder"), "\"" + work.string() + "\"",
                                     VRK::ScriptPosition());
    builder.finish();
    auto probe = std::make_shared<FolderWriterProbe>();
    script.addFunctor(probe, true);
    probe->editor().setFilename((work / "maps/out").string(), false);
    EXPECT_EQ(probe->editor().getRelativeFilename(), "");

    // Inside a Workdir that has not produced its folder, the name waits for it.
    workdir.asContainer()->transferFunctor(probe.get(), true);
    EXPECT_EQ(probe->editor().getWorkdir(), " The work directory is unknown !");
    EXPECT_EQ(probe->editor().getFullFilename(), (work / "maps/out").string());

    script.transferFunctor(probe.get(), true);
    script.runLight(&workdir);
    workdir.asContainer()->transferFunctor(probe.get(), true);
    EXPECT_EQ(probe->editor().getWorkdir(), work.string());
    EXPECT_EQ(probe->editor().getRelativeFilename(), "maps/out");

    // Out of it, the relative name is resolved against the current directory.
    script.transferFunctor(probe.get(), true);
    EXPECT_FALSE(probe->getInputPort("workdir")->isBound());
    EXPECT_EQ(probe->editor().getWorkdir(), "");
    EXPECT_EQ(probe->editor().getRelativeFilename(), "");
    EXPECT_EQ(probe->editor().getFullFilename(), (fs::current_path() / "maps/out").string());
}

TEST(FilenamedFunctor, PrepareFilenameNumbersByStepInsideTheWorkdir)
{
    const Prim::CompoundFilename relative("out.txt", boost::none, true);
    const Prim::WorkdirData work(fs::path("/w"));
    const Prim::NonNegativeIntData step0(0);
    const Prim::NonNegativeIntData step42(42);
    EXPECT_EQ(prepared(relative, work, 3, step0), "/w/out000.txt") << "step 0 is a step";
    EXPECT_EQ(prepared(relative, work, 1, step42), "/w/out42.txt");
    EXPECT_EQ(prepared(relative, work, 0, step42), "/w/out.txt") << "no digits, no number";
    EXPECT_EQ(prepared(relative, work, 3, boost::none), "/w/out.txt") << "no step, no number";
    EXPECT_EQ(prepared(relative, Prim::WorkdirData(fs::path("/w/pack.zip")), 2, step0),
              "/w/out00.txt")
        << "the files of an archive lie beside it";
    const Prim::CompoundFilename complete("/data/in.csv", boost::none, false);
    EXPECT_EQ(prepared(complete, boost::none, 2, step42), "/data/in42.csv");
}

} // namespace
