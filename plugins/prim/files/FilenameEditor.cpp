#include "plugins/prim/files/FilenameEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/error/UndefinedNodeException.h"
#include "base/graph/Functor.h"
#include "base/graph/InputPort.h"
#include "base/graph/WorkdirBinding.h"
#include "base/log/Logger.h"
#include "base/run/LightRunner.h"
#include "plugins/prim/files/FilenameData.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/files/WorkdirData.h"
#include "plugins/prim/values/DataCast.h"

#include <boost/filesystem/operations.hpp>

#include <cassert>
#include <sstream>

namespace Prim {

FilenameEditor::FilenameEditor(const std::string& name, const std::string& description,
                               const std::shared_ptr<VRK::BaseType>& type)
    : VRK::DataEditor(name, description, type)
{
}

FilenameEditor::~FilenameEditor() = default;

void FilenameEditor::toStream(std::ostream& out, int) const { out << '"' << getFilename() << '"'; }

void FilenameEditor::unpackData(const VRK::BaseData& data)
{
    filename_ = DataCast::as<FilenameData>(data).getCompoundFilename();
}

void FilenameEditor::prepare()
{
    VRK::DataEditor::prepare();
    const bool named =
        !filename_.getFullFilename().empty() || !filename_.getRelativeFilename().empty();
    if (updateWorkdir() && named)
        filename_.updateFilenamesIfNecessary(workdir_);
}

std::string FilenameEditor::getAlias() const { return "filename"; }

std::string FilenameEditor::getDefaultFilename() const { return ""; }

bool FilenameEditor::isExtensionAccepted(const std::string&) const { return true; }

void FilenameEditor::setFilename(std::string filename, bool delay)
{
    if (filename.empty())
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>("The " + getAlias() + " \"" + filename
                                                              + "\" is not valid.");
    const path normalised = PathEditor::normalisePath(filename);
    givenComplete_ = normalised.is_absolute();
    // A relative name read inside a work directory that is not known yet means a file
    // of that directory, not of the folder the script was read from.
    if (delay)
        filename_.setFilename(normalised, Workdir(), true);
    else if (awaitsWorkdir())
        filename_.setFilename(normalised, Workdir(path()), true);
    else
        filename_.setFilename(normalised, workdir_, false);
}

bool FilenameEditor::awaitsWorkdir() const
{
    const VRK::Functor* owner = getOwner();
    VRK::InputPort* workdirPort = owner ? owner->getInputPort("workdir") : nullptr;
    return !workdir_ && workdirPort
           && (workdirPort->isBound() || VRK::WorkdirBinding::findImplicitPeer(*workdirPort));
}

std::string FilenameEditor::getFilename() const
{
    const path& relative = filename_.getRelativeFilename();
    return (relative.empty() ? filename_.getFullFilename() : relative).string();
}

std::string FilenameEditor::getRelativeFilename() const
{
    return filename_.getRelativeFilename().string();
}

std::string FilenameEditor::getFullFilename() const { return filename_.getFullFilename().string(); }

std::string FilenameEditor::getWorkdir() const
{
    if (!workdir_)
        return "";
    if (workdir_->empty())
        return " The work directory is unknown !";
    return workdir_->string();
}

bool FilenameEditor::updateWorkdir(bool lightRun)
{
    try {
        findWorkdir(lightRun);
        return true;
    } catch (const VRK::Exception& exception) {
        VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
        if (logger->isLogging(VRK::debug)) {
            std::ostringstream line;
            line.precision(20);
            line << getName()
                 << ": Exception ignored trying to retrieve workdir:" << exception.getMessage();
            logger->log(VRK::debug, line.str(), false);
        }
        return false;
    }
}

// No owner, or an owner without a "workdir" input (a Workdir's own folder, a folder
// carrier), means that no work directory applies.
void FilenameEditor::findWorkdir(bool lightRun)
{
    VRK::Functor* owner = getOwner();
    VRK::InputPort* workdirPort = owner ? owner->getInputPort("workdir") : nullptr;
    if (!workdirPort || !workdirPort->isBound()) {
        workdir_ = boost::none;
        return;
    }
    if (lightRun)
        runWorkdirFunctor(workdirPort);
    else if (workdirPort->getPeer()->hasData())
        workdirPort->pullData();
    else
        workdirPort->resetData();
    if (!workdirPort->hasData()) {
        workdir_ = path();
        return;
    }
    const path& workdir = DataCast::as<WorkdirData>(workdirPort->getData()).getValue();
    workdir_ = workdir.empty() ? workdir : boost::filesystem::system_complete(workdir);
}

// Makes the Workdir functor that feeds `workdirPort` produce its directory, unless it
// already has, and brings the directory into the port.
void FilenameEditor::runWorkdirFunctor(VRK::InputPort* workdirPort)
{
    assert(workdirPort != 0 && "workdirPort != 0");
    VRK::DataHolder* peer = workdirPort->getPeer();
    if (!peer)
        return;
    VRK::Functor* functor = peer->getOwner();
    if (!functor)
        VRK::ExceptionUtils::raise<VRK::UndefinedNodeException>(
            "The \"workdir\" holder is not part of a functor.");
    VRK::LightRunner* script = VRK::LightRunner::of(*functor);
    if (!script)
        VRK::ExceptionUtils::raise<VRK::UndefinedNodeException>(
            "The \"Workdir\" functor is not part of a script.");
    if (!peer->hasData())
        script->runLight(functor);
    workdirPort->pullData();
}

} // namespace Prim
