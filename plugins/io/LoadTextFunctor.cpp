#include "plugins/io/LoadTextFunctor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/UnableToAccessFileException.h"
#include "plugins/io/TextFileUtils.h"
#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"
#include "plugins/prim/values/texts/StringData.h"
#include "plugins/prim/values/texts/StringType.h"

#include <fstream>
#include <iterator>

namespace Io {

LoadText::LoadText()
    : Prim::FilenamedFunctor(
        "LoadText", "Read a text file into a string.", "filename", "workdir",
        TextFileUtils::verifierOf(&Prim::FilenamedFunctorVerifierAdapter::canReadFile),
        "suffixDigits", "step", nullptr)
{
    TextFileUtils::addFilePorts(*this, "Text file to read.");
    addOutputPort("text", "Text of the file.", Prim::StringType::getInstance());
}

LoadText::~LoadText() = default;

void LoadText::runImpl()
{
    const boost::filesystem::path file = TextFileUtils::getFile(*this);
    Prim::FilenamedFunctorVerifierAdapter::requireReadable(file);
    std::ifstream in(file.string(), std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
            "The file \"" + file.string() + "\" can not be read.");
    setOutputPortValue<Prim::StringData>("text", text);
}

} // namespace Io
