#include "plugins/prim/files/FilenamedFunctorVerifierAdapter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileNotFoundException.h"
#include "base/error/UnableToAccessFileException.h"
#include "base/graph/Functor.h"
#include "base/util/PathUtils.h"
#include "plugins/prim/files/FilenameEditor.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"

#include <boost/filesystem/operations.hpp>

#include <cassert>

namespace Prim {

namespace {

using path = FilenamedFunctorVerifierAdapter::path;

// The editor of the typed-in filename, with its work directory looked up; none when
// the name is bound to another functor's output.
FilenameEditor* preparedEditor(VRK::Functor* functor, const std::string& filenamePort)
{
    assert(functor != 0 && "functor != 0");
    VRK::InputPort* filenameInput = functor->getInputPort(filenamePort);
    assert(filenameInput != 0 && "filenameInput != 0");
    auto* editor = dynamic_cast<FilenameEditor*>(filenameInput->getDataEditor());
    if (filenameInput->isBound() || !editor)
        return nullptr;
    editor->prepare();
    return editor;
}

void requireSupported(const std::set<std::string>& extensions, const FilenameEditor& editor)
{
    const std::string extension = editor.getCompoundFilename().getExtension();
    if (extension != ".zip" && extensions.count(extension) == 0)
        VRK::ExceptionUtils::raise<VRK::Exception>("The \"" + editor.getFilename()
                                                   + "\" does not represent a supported file "
                                                     "format.");
}

// Whether the file's name takes the loop step: a bound step and suffix digits that are
// bound or above 0.
bool followsStep(VRK::Functor& functor, const std::string& suffixDigitsPort,
                 const std::string& stepPort)
{
    if (stepPort.empty())
        return false;
    VRK::InputPort* suffixDigits = functor.getInputPort(suffixDigitsPort);
    VRK::InputPort* step = functor.getInputPort(stepPort);
    assert(suffixDigits != 0 && "suffixDigits != 0");
    assert(step != 0 && "step != 0");
    if (!step->isBound())
        return false;
    const auto* digits = dynamic_cast<const NonNegativeIntEditor*>(suffixDigits->getDataEditor());
    return suffixDigits->isBound() || (digits && digits->getNonNegativeInt() > 0);
}

} // namespace

void FilenamedFunctorVerifierAdapter::canReadFile(const std::set<std::string>& extensions,
                                                  VRK::Functor* functor,
                                                  const std::string& filenamePort,
                                                  const std::string& suffixDigitsPort,
                                                  const std::string& stepPort)
{
    checkFile(extensions, functor, filenamePort, suffixDigitsPort, stepPort, &requireReadable);
}

void FilenamedFunctorVerifierAdapter::canWriteFile(const std::set<std::string>& extensions,
                                                   VRK::Functor* functor,
                                                   const std::string& filenamePort,
                                                   const std::string& suffixDigitsPort,
                                                   const std::string& stepPort)
{
    checkFile(extensions, functor, filenamePort, suffixDigitsPort, stepPort, &requireWritable);
}

// A name that follows the step names files that do not exist yet: only their folder is
// known before the run.
void FilenamedFunctorVerifierAdapter::checkFile(const std::set<std::string>& extensions,
                                                VRK::Functor* functor,
                                                const std::string& filenamePort,
                                                const std::string& suffixDigitsPort,
                                                const std::string& stepPort,
                                                void (*checkWholeName)(const path&))
{
    FilenameEditor* editor = preparedEditor(functor, filenamePort);
    if (!editor)
        return;
    requireSupported(extensions, *editor);
    const path file = editor->getFullFilename();
    if (file.empty())
        return;
    if (followsStep(*functor, suffixDigitsPort, stepPort))
        requireFolder(file);
    else
        checkWholeName(file);
}

void FilenamedFunctorVerifierAdapter::requireFolder(const path& file)
{
    const path folder = file.parent_path();
    boost::system::error_code error;
    if (!boost::filesystem::is_directory(folder, error))
        VRK::ExceptionUtils::raise<VRK::FileNotFoundException>(
            "The directory/folder \"" + folder.string() + "\" does not exist.");
}

void FilenamedFunctorVerifierAdapter::requireReadable(const path& file)
{
    boost::system::error_code error;
    if (!VRK::Boost::PathUtils::canReadPath(file) || boost::filesystem::is_directory(file, error))
        VRK::ExceptionUtils::raise<VRK::FileNotFoundException>("The file \"" + file.string()
                                                               + "\" can not be read.");
}

void FilenamedFunctorVerifierAdapter::requireWritable(const path& file)
{
    requireFolder(file);
    if (!VRK::Boost::PathUtils::canWritePath(file))
        VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
            "The file \"" + file.string() + "\" can not be written.");
}

} // namespace Prim
