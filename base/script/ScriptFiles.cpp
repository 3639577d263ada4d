#include "base/script/ScriptFiles.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileNotFoundException.h"
#include "base/plugin/FactoryFarmManager.h"
#include "base/script/AtomicFileWriter.h"
#include "base/script/Script.h"
#include "base/script/ScriptReader.h"
#include "base/script/ScriptWriter.h"
#include "base/util/DirectoryStack.h"

#include <boost/filesystem/path.hpp>

#include <algorithm>
#include <cctype>
#include <fstream>

namespace VRK {

namespace {

template <class FactoryT>
auto createFor(const FactoryT& factory, const std::string& filename, const char* kind)
{
    const std::string extension = ScriptFiles::getExtension(filename);
    if (!factory->isRegistered(extension))
        ExceptionUtils::raise<FileException>(std::string("No script ") + kind
                                             + " is registered for files ending in \""
                                             + extension + "\" such as \"" + filename + "\".");
    return factory->create(extension);
}

boost::filesystem::path folderOf(const std::string& filename)
{
    const boost::filesystem::path folder = boost::filesystem::path(filename).parent_path();
    return folder.empty() ? boost::filesystem::path(".") : folder;
}

} // namespace

std::string ScriptFiles::getExtension(const std::string& filename)
{
    std::string extension = boost::filesystem::path(filename).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

std::shared_ptr<ScriptReader> ScriptFiles::createReader(const std::string& filename)
{
    return createFor(FactoryFarmManager::Instance().getScriptReaderFactory(), filename, "reader");
}

std::shared_ptr<ScriptWriter> ScriptFiles::createWriter(const std::string& filename)
{
    return createFor(FactoryFarmManager::Instance().getScriptWriterFactory(), filename, "writer");
}

std::shared_ptr<Script> ScriptFiles::read(const std::string& filename)
{
    std::shared_ptr<ScriptReader> reader = createReader(filename);
    std::ifstream in(filename, std::ios::binary);
    if (!in)
        ExceptionUtils::raise<FileNotFoundException>("The script \"" + filename
                                                     + "\" cannot be opened.");
    auto script = std::make_shared<Script>();
    // Relative file names in a script mean what they say beside the script.
    DirectoryStack beside(folderOf(filename));
    reader->read(script.get(), in, filename);
    return script;
}

void ScriptFiles::write(Script& script, const std::string& filename)
{
    std::shared_ptr<ScriptWriter> writer = createWriter(filename);
    writer->checkCompatibility(&script, filename);
    // File names are written relative to the folder the script goes to.
    DirectoryStack beside(folderOf(filename));
    AtomicFileWriter::write(filename, [&](std::ostream& out) {
        writer->write(&script, out, filename);
    });
}

} // namespace VRK
