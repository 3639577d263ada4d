#include "plugins/prim/files/FilenamedFunctor.h"

#include "base/error/Exception.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorContainer.h"
#include "base/graph/WorkdirBinding.h"
#include "base/util/PathUtils.h"

#include <cassert>

namespace Prim {

FilenamedFunctor::FilenamedFunctor(const std::string& name, const std::string& description,
                                   const std::string& filenamePort, const std::string& workdirPort,
                                   const Verifier& verifier, const std::string& suffixDigitsPort,
                                   const std::string& stepPort,
                                   const std::shared_ptr<VRK::BaseType>& type)
    : FilenameBanneredFunctor<VRK::Functor>(name, description, filenamePort, workdirPort,
                                            suffixDigitsPort, stepPort, type),
      verifier_(verifier)
{
}

FilenamedFunctor::~FilenamedFunctor() = default;

void FilenamedFunctor::prepareFilename(path& result, path& workdirOut, CompoundFilename& filename,
                                       const boost::optional<WorkdirData>& workdir,
                                       int suffixDigits,
                                       const boost::optional<NonNegativeIntData>& step)
{
    path fullFilename;
    path relativeFilename;
    if (!workdir) {
        workdirOut.clear();
        filename.getFullAndRelativeFilenames(fullFilename, relativeFilename, boost::none);
        assert((!fullFilename.empty() || !relativeFilename.empty()) && "! relativeFilename.empty()");
        result = fullFilename.empty() ? relativeFilename : fullFilename;
    } else {
        workdirOut = workdir->getValue();
        filename.getFullAndRelativeFilenames(fullFilename, relativeFilename, workdirOut);
        assert((!fullFilename.empty() || !relativeFilename.empty()) && "! fullFilename.empty()");
        result = relativeFilename.empty() ? fullFilename : relativeFilename;
    }
    if (!step || suffixDigits <= 0)
        return;
    const std::string extension = result.extension().string();
    const path base = VRK::Boost::PathUtils::changeExtension(result, "");
    result = VRK::Boost::PathUtils::generatePath(base.string(), static_cast<size_t>(suffixDigits),
                                                 step->getValue(), extension);
}

FilenamedFunctor::path FilenamedFunctor::completeFilename(const path& result,
                                                          const path& workdirOut)
{
    if (result.is_absolute() || workdirOut.empty())
        return result;
    const bool archive = workdirOut.extension() == ".zip";
    return ((archive ? workdirOut.parent_path() : workdirOut) / result).lexically_normal();
}

void FilenamedFunctor::onContainerAdded(VRK::FunctorContainer& container)
{
    FilenameBanneredFunctor<VRK::Functor>::onContainerAdded(container);
    updateFilenameInWorkdir(container);
}

void FilenamedFunctor::onIndirectContainerAdded(VRK::FunctorContainer& container, size_t depth)
{
    FilenameBanneredFunctor<VRK::Functor>::onIndirectContainerAdded(container, depth);
    updateFilenameInWorkdir(container);
}

void FilenamedFunctor::onContainerErased()
{
    FilenameBanneredFunctor<VRK::Functor>::onContainerErased();
    updateFilename();
}

void FilenamedFunctor::onIndirectContainerErased(size_t depth)
{
    FilenameBanneredFunctor<VRK::Functor>::onIndirectContainerErased(depth);
    updateFilename();
}

void FilenamedFunctor::verify()
{
    verifier_(this, getFilenamePortName(), getSuffixDigitsPortName(), getStepPortName());
}

void FilenamedFunctor::updateFilenameInWorkdir(VRK::FunctorContainer& container)
{
    const VRK::Functor* owner = container.asFunctor();
    if (owner && owner->getName() == "Workdir")
        updateFilename();
}

// A work-directory input that the host bound follows the functor to its new place; one
// that the modeller bound to something else stays.
void FilenamedFunctor::rebindWorkdir()
{
    VRK::InputPort* workdirPort =
        getWorkdirPortName().empty() ? nullptr : getInputPort(getWorkdirPortName());
    if (!workdirPort || !VRK::WorkdirBinding::isWorkdirPort(*workdirPort))
        return;
    const VRK::DataHolder* peer = workdirPort->getPeer();
    const VRK::Functor* peerOwner = peer ? peer->getOwner() : nullptr;
    const VRK::ContainerFunctor* container = peerOwner ? peerOwner->asContainer() : nullptr;
    if (peer && !(container && container->getInternalOutputPort("workdir") == peer))
        return;
    workdirPort->bind(VRK::WorkdirBinding::findImplicitPeer(*workdirPort));
}

// Moving a functor never fails because its file is not known yet.
void FilenamedFunctor::updateFilename()
{
    VRK::InputPort* filenameInput = getInputPort(getFilenamePortName());
    assert(filenameInput != 0 && "filenameInput != 0");
    rebindWorkdir();
    FilenameEditor& editor = getFilenameEditor();
    try {
        // Building a script runs nothing: a work directory not produced yet is unknown.
        if (editor.updateWorkdir(false))
            editor.getCompoundFilename().updateFilenamesIfNecessary(editor.getWorkdirPath());
    } catch (const VRK::Exception&) {
    }
}

} // namespace Prim
