#include "plugins/prim/files/WorkdirFunctor.h"

#include "base/task/Task.h"
#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/files/FolderType.h"
#include "plugins/prim/files/WorkdirType.h"

#include <boost/filesystem/operations.hpp>

#include <cassert>

namespace Prim {

Workdir::Workdir()
    : ContainerFunctor("Workdir",
                       "This functor sets the path for the working directory used by model "
                       "functors to read and write files.",
                       nullptr)
{
    addInputPort("folder",
                 "Working directory. The functor defines a working directory for contained "
                 "functors.",
                 FolderType::getInstance(), false);
    // Like every functor that carries a filename, it hears of the work directory around it.
    addInputPort("workdir", "Work directory of an enclosing Workdir.", WorkdirType::getInstance(),
                 true);
    addInternalOutputPort("workdir", "Work directory.", WorkdirType::getInstance());
    setFlag(VRK::FunctorFlags::Folder, true);
}

Workdir::~Workdir() = default;

void Workdir::runImpl()
{
    CompoundFilename folder = getInputPortValue<FolderData>("folder");
    VRK::Task* functorTask = VRK::Task::getCurrentTask();
    assert(functorTask != 0 && "functorTask != 0");
    functorTask->checkCancellation();
    // The folder is resolved again here, as the enclosing directory may change per pass.
    CompoundFilename::Workdir enclosing;
    const VRK::InputPort* outer = getInputPort("workdir");
    if (outer->hasData())
        enclosing = boost::filesystem::system_complete(
            typedData<WorkdirData>(*outer).getValue());
    setInternalOutputPortValue<WorkdirType>("workdir", folder.getFullFilename(enclosing));
    VRK::ContainerFunctor::runImpl();
}

bool Workdir::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

} // namespace Prim
