#include "plugins/io/TextFileUtils.h"

#include "plugins/io/TextFileEditor.h"
#include "plugins/io/TextFileType.h"
#include "plugins/prim/files/FilenamedFunctorUtils.h"

namespace Io {

Prim::FilenamedFunctor::Verifier TextFileUtils::verifierOf(Check check)
{
    return Prim::FilenamedFunctorUtils::verifierOf(check, TextFileEditor::getExtensions());
}

void TextFileUtils::addFilePorts(VRK::Functor& functor, const std::string& filenameDescription)
{
    Prim::FilenamedFunctorUtils::addFilePorts(functor, TextFileType::getInstance(),
                                              filenameDescription);
}

boost::filesystem::path TextFileUtils::getFile(const Prim::FilenamedFunctor& functor)
{
    return Prim::FilenamedFunctorUtils::getFile(functor);
}

} // namespace Io
