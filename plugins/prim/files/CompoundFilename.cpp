#include "plugins/prim/files/CompoundFilename.h"

#include "base/log/Logger.h"
#include "base/util/DirectoryStack.h"
#include "base/util/PathUtils.h"
#include "plugins/prim/files/PathEditor.h"

#include <sstream>

namespace Prim {

namespace {

using path = CompoundFilename::path;

std::string workdirText(const CompoundFilename::Workdir& workdir)
{
    return workdir ? workdir->string() : std::string("<unknown>");
}

// Work directories that are archives resolve their files beside the archive.
bool isArchive(const path& workdir) { return workdir.extension() == ".zip"; }

bool beginsWith(const path& filename, const std::string& word)
{
    return !filename.empty() && *filename.begin() == word;
}

// `filename` rebuilt from its components without those equal to `word`, each kept
// component written the way a user's path is stored.
path dropComponents(const path& filename, const std::string& word)
{
    path rebuilt;
    for (const path& component : filename)
        if (component != word)
            rebuilt /= PathEditor::normalisePath(component.string());
    return rebuilt;
}

// Lexical normalisation, without the "." that it leaves for a trailing separator.
path normalised(const path& filename)
{
    path result = filename.lexically_normal();
    if (result.filename() == "." && result.has_parent_path())
        result = result.parent_path();
    return result;
}

// Writes the line that `write` builds, only when the thread's logger keeps debug lines.
template <class Write>
void logDebug(Write write)
{
    VRK::Logger* logger = VRK::Logger::getCurrentThreadLogger();
    if (!logger->isLogging(VRK::debug))
        return;
    std::ostringstream line;
    line.precision(20);
    write(line);
    logger->log(VRK::debug, line.str(), false);
}

path withoutTrailingDots(path filename)
{
    while (filename.filename() == "." && filename.has_parent_path())
        filename = filename.parent_path();
    return filename;
}

} // namespace

CompoundFilename::CompoundFilename(const path& filename, const Workdir& workdir, bool delay)
{
    setFilename(filename, workdir, delay);
}

CompoundFilename::~CompoundFilename() = default;

void CompoundFilename::setFilename(const path& filename, const Workdir& workdir, bool delay)
{
    logDebug([&](std::ostream& line) {
        line << "Defining internal filenames: input filename=\"" << filename.string()
             << "\", workdir=\"" << workdirText(workdir) << "\", delay=" << std::boolalpha << delay;
    });
    path input = withoutTrailingDots(filename);
    if (input.is_absolute()) {
        fullFilename_ = input;
    } else {
        if (beginsWith(input, "."))
            input = dropComponents(input, ".");
        fullFilename_ = workdir && workdir->empty() ? path() : resolveAgainst(input, workdir);
    }
    if ((delay && !input.is_absolute()) || (workdir && workdir->empty()))
        relativeFilename_ = input;
    else if (workdir)
        relativeFilename_ = relativeTo(*workdir);
    else
        relativeFilename_.clear(); // Without a work directory there is nothing to be relative to.
    logFilenames("All internal filenames successfully defined");
}

void CompoundFilename::updateFilenamesIfNecessary(const Workdir& workdir)
{
    logDebug([&](std::ostream& line) {
        line << "Updating internal filenames: relative filename=\"" << relativeFilename_.string()
             << "\", full filename=\"" << fullFilename_.string() << "\", workdir=\""
             << workdirText(workdir) << "\"";
    });
    if (workdir && !workdir->empty() && relativeFilename_.empty()) {
        relativeFilename_ = relativeTo(*workdir);
    } else if (workdir && workdir->empty() && !fullFilename_.empty()) {
        relativeFilename_.clear();
    } else if (!relativeFilename_.empty() && !(workdir && workdir->empty())) {
        // Only a relative form can tell where the file is for this work directory. While
        // the work directory is expected but unknown there is nothing to join it to, and
        // the relative form must survive until it arrives.
        if (relativeFilename_.is_absolute()) {
            fullFilename_ = relativeFilename_;
        } else {
            if (workdir && isArchive(*workdir) && beginsWith(relativeFilename_, ".."))
                relativeFilename_ = dropComponents(relativeFilename_, "..");
            fullFilename_ = resolveAgainst(relativeFilename_, workdir);
            if (!workdir)
                relativeFilename_.clear();
        }
        fullFilename_ = normalised(fullFilename_);
    }
    logFilenames("All internal filenames successfully updated");
}

const CompoundFilename::path& CompoundFilename::getFullFilename(const Workdir& workdir)
{
    updateFilenamesIfNecessary(workdir);
    return fullFilename_;
}

const CompoundFilename::path& CompoundFilename::getRelativeFilename(const Workdir& workdir)
{
    updateFilenamesIfNecessary(workdir);
    return relativeFilename_;
}

void CompoundFilename::getFullAndRelativeFilenames(path& full, path& relative,
                                                   const Workdir& workdir)
{
    updateFilenamesIfNecessary(workdir);
    full = fullFilename_;
    relative = relativeFilename_;
}

CompoundFilename::path CompoundFilename::getFilename() const
{
    return fullFilename_.empty() ? relativeFilename_.filename() : fullFilename_.filename();
}

std::string CompoundFilename::getExtension() const
{
    return (fullFilename_.empty() ? relativeFilename_ : fullFilename_).extension().string();
}

void CompoundFilename::toStream(std::ostream& out, int) const
{
    out << "CompoundFilename { relative filename=\"" << relativeFilename_.string()
        << "\", full filename=\"" << fullFilename_.string() << "\"}";
}

// The complete, normalised path of `relative` for `workdir`: the current directory
// (or the run's folder) when there is none, the folder of an archive, or the work directory itself.
CompoundFilename::path CompoundFilename::resolveAgainst(const path& relative,
                                                        const Workdir& workdir) const
{
    if (!workdir)
        return normalised(VRK::DirectoryStack::resolve(relative));
    const path base = isArchive(*workdir) ? workdir->parent_path() : *workdir;
    return normalised(base / relative);
}

// The full filename relative to `workdir`; inside an archive, without climbing out of it.
CompoundFilename::path CompoundFilename::relativeTo(const path& workdir) const
{
    path relative = VRK::Boost::PathUtils::getRelativePath(workdir, fullFilename_);
    if (isArchive(workdir) && beginsWith(relative, ".."))
        relative = dropComponents(relative, "..");
    return relative;
}

void CompoundFilename::logFilenames(const std::string& heading) const
{
    logDebug([&](std::ostream& line) {
        line << heading << ": relative filename=\"" << relativeFilename_.string()
             << "\", full filename=\"" << fullFilename_.string() << "\"";
    });
}

} // namespace Prim
