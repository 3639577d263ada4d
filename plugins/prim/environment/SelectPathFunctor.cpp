#include "plugins/prim/environment/SelectPathFunctor.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/log/Logger.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/util/Singleton.h"
#include "plugins/prim/environment/NumberedPathRegistratorType.h"
#include "plugins/prim/environment/SeriesUtils.h"
#include "plugins/prim/files/PathData.h"
#include "plugins/prim/files/PathType.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

#include <cassert>
#include <sstream>
#include <string>

namespace Prim {

namespace {
const char* const StepPort = "step";
const char* const FilenamePort = "filename";
const char* const NumberPort = "filenameNumber";
} // namespace

SelectPath::SelectPath()
    : VRK::ContainerFunctor("SelectPath", "Pick up a filename from a series of filenames.", nullptr)
{
    addInputPort(StepPort, "Current index, step or model iteration.",
                 PositiveIntType::getInstance(), false);
    addOutputPort(FilenamePort, "Filename.", PathType::getInstance());
}

SelectPath::~SelectPath() = default;

bool SelectPath::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return functor->getType() != 0
           && functor->getType()->getName()
                  == VRK::Singleton<NumberedPathRegistratorType>::getInstance()->getName();
}

void SelectPath::runContainerImpl()
{
    const int index = getInputPortValue<IntData>(StepPort);
    VRK::ContainerFunctorUtils::runFunctorsInContainer(*this);
    const Series paths = collectPaths();
    logPaths(paths);
    const boost::filesystem::path* picked = SeriesUtils::pick(paths, index);
    if (!picked)
        VRK::ExceptionUtils::raise<VRK::Exception>("The path corresponding to #"
                                                   + std::to_string(index) + " is not defined.");
    setOutputPortValue<PathData>(FilenamePort, *picked);
}

// NumberPath functors are not hooks: they ran in the pass like any functor, so their
// inputs hold what they pulled.
SelectPath::Series SelectPath::collectPaths() const
{
    Series paths;
    const FunctorIterator functors = getFunctorIterator();
    while (functors.hasNext()) {
        VRK::Functor* functor = functors.next();
        assert(functor != 0 && "functor != 0");
        assert(functor->getType() != 0 && "functor->getType() != 0");
        assert(functor->getType()->getName()
                   == VRK::Singleton<NumberedPathRegistratorType>::getInstance()->getName()
               && "functor->getType()->getName() == "
                  "NumberedPathRegistratorType::getInstance()->getName()");
        const int number = functor->getInputPortValue<IntData>(NumberPort);
        if (!paths.emplace(number, functor->getInputPortValue<PathData>(FilenamePort)).second)
            VRK::ExceptionUtils::raise<VRK::Exception>("The number \"" + std::to_string(number)
                                                       + "\" is already in use by another path.");
    }
    return paths;
}

void SelectPath::logPaths(const Series& paths)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    logger->log(VRK::debug, "User registered map filenames:", false);
    for (const auto& entry : paths) {
        std::ostringstream line;
        line << "==[ \"" << entry.first << "\" ]== \"" << entry.second.string() << "\"";
        logger->log(VRK::debug, line.str(), false);
    }
}

} // namespace Prim
