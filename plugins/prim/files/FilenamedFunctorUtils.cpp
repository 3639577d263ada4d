#include "plugins/prim/files/FilenamedFunctorUtils.h"

#include "base/data/DataCast.h"
#include "plugins/prim/files/FilenameData.h"
#include "plugins/prim/files/WorkdirType.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/NonNegativeIntType.h"

#include <boost/filesystem/operations.hpp>

#include <cassert>

namespace Prim {

FilenamedFunctor::Verifier
FilenamedFunctorUtils::verifierOf(Check check, const std::set<std::string>& extensions)
{
    return [check, extensions](VRK::Functor* functor, const std::string& filename,
                               const std::string& digits, const std::string& step) {
        check(extensions, functor, filename, digits, step);
    };
}

void FilenamedFunctorUtils::addFilePorts(VRK::Functor& functor,
                                         const std::shared_ptr<VRK::BaseType>& fileType,
                                         const std::string& filenameDescription)
{
    functor.addInputPort("filename", filenameDescription, fileType, false);
    functor.addOptionalInputPort("suffixDigits",
                                 "Digits of the step number added to the file name; 0 adds none.",
                                 NonNegativeIntType::getInstance(), false, 0);
    functor.addOptionalInputPort("step", "Step whose number is added to the file name.",
                                 NonNegativeIntType::getInstance(), true, 0);
    functor.addInputPort("workdir", "Work directory of the file.", WorkdirType::getInstance(),
                         true);
}

boost::filesystem::path FilenamedFunctorUtils::getFile(const FilenamedFunctor& functor)
{
    const VRK::InputPort& filenamePort = *functor.getInputPort("filename");
    assert(filenamePort.hasData() && "filenamePort.hasData()");
    const auto* named = VRK::DataCast::find<FilenameData>(filenamePort.getData());
    assert(named != 0 && "named != 0");
    CompoundFilename filename = named->getCompoundFilename();
    boost::optional<WorkdirData> workdir;
    const VRK::InputPort* workdirPort = functor.getInputPort("workdir");
    if (workdirPort->isBound() && workdirPort->hasData())
        workdir = WorkdirData(
            boost::filesystem::system_complete(functor.getInputPortValue<WorkdirData>("workdir")));
    boost::optional<NonNegativeIntData> step;
    if (functor.getInputPort("step")->isBound())
        step = NonNegativeIntData(functor.getInputPortValue<IntData>("step"));
    const int digits = functor.getInputPortValue<IntData>("suffixDigits");
    boost::filesystem::path result;
    boost::filesystem::path workdirOut;
    FilenamedFunctor::prepareFilename(result, workdirOut, filename, workdir, digits, step);
    return FilenamedFunctor::completeFilename(result, workdirOut);
}

} // namespace Prim
