#include "plugins/io/TextFileUtils.h"

#include "plugins/io/TextFileData.h"
#include "plugins/io/TextFileEditor.h"
#include "plugins/io/TextFileType.h"
#include "plugins/prim/NonNegativeIntType.h"
#include "plugins/prim/WorkdirType.h"

#include <boost/filesystem/operations.hpp>

namespace Io {

Prim::FilenamedFunctor::Verifier TextFileUtils::verifierOf(Check check)
{
    return [check](VRK::Functor* functor, const std::string& filename, const std::string& digits,
                   const std::string& step) {
        check(TextFileEditor::getExtensions(), functor, filename, digits, step);
    };
}

void TextFileUtils::addFilePorts(VRK::Functor& functor, const std::string& filenameDescription)
{
    functor.addInputPort("filename", filenameDescription, TextFileType::getInstance(), false);
    functor.addOptionalInputPort("suffixDigits",
                                 "Digits of the step number added to the file name; 0 adds none.",
                                 Prim::NonNegativeIntType::getInstance(), false, 0);
    functor.addOptionalInputPort("step", "Step whose number is added to the file name.",
                                 Prim::NonNegativeIntType::getInstance(), true, 0);
    functor.addInputPort("workdir", "Work directory of the file.",
                         Prim::WorkdirType::getInstance(), true);
}

boost::filesystem::path TextFileUtils::getFile(const Prim::FilenamedFunctor& functor)
{
    Prim::CompoundFilename filename = functor.getInputPortValue<TextFileData>("filename");
    boost::optional<Prim::WorkdirData> workdir;
    const VRK::InputPort* workdirPort = functor.getInputPort("workdir");
    if (workdirPort->isBound() && workdirPort->hasData())
        workdir = Prim::WorkdirData(boost::filesystem::system_complete(
            functor.getInputPortValue<Prim::WorkdirData>("workdir")));
    boost::optional<Prim::NonNegativeIntData> step;
    if (functor.getInputPort("step")->isBound())
        step = Prim::NonNegativeIntData(functor.getInputPortValue<Prim::IntData>("step"));
    const int digits = functor.getInputPortValue<Prim::IntData>("suffixDigits");
    boost::filesystem::path result;
    boost::filesystem::path workdirOut;
    Prim::FilenamedFunctor::prepareFilename(result, workdirOut, filename, workdir, digits, step);
    return Prim::FilenamedFunctor::completeFilename(result, workdirOut);
}

} // namespace Io
