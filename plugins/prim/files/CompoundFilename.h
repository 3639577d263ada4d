#ifndef VRK_PLUGINS_PRIM_FILES_COMPOUNDFILENAME_H
#define VRK_PLUGINS_PRIM_FILES_COMPOUNDFILENAME_H

#include "base/util/Stringable.h"

#include <boost/filesystem/path.hpp>
#include <boost/optional.hpp>

#include <string>

namespace Prim {

// A filename kept twice: relative to the work directory, so that a moved script still
// finds its files, and complete, so that it can be opened. Each form is re-derived from
// the other whenever the work directory may have changed.
class CompoundFilename : public VRK::Stringable {
public:
    using path = boost::filesystem::path;
    using Workdir = boost::optional<path>;

    CompoundFilename() = default;
    CompoundFilename(const path& filename, const Workdir& workdir, bool delay);
    CompoundFilename(const CompoundFilename&) = default;
    CompoundFilename& operator=(const CompoundFilename&) = default;
    ~CompoundFilename() override;

    // Defines both forms from a path a user gave. `delay` keeps a relative input as
    // it is, to be resolved once the work directory is known.
    void setFilename(const path& filename, const Workdir& workdir, bool delay);
    // Re-derives the forms for `workdir`.
    void updateFilenamesIfNecessary(const Workdir& workdir);

    const path& getFullFilename(const Workdir& workdir);
    const path& getRelativeFilename(const Workdir& workdir);
    void getFullAndRelativeFilenames(path& full, path& relative, const Workdir& workdir);

    // The forms as they stand, without re-deriving them.
    const path& getFullFilename() const { return fullFilename_; }
    const path& getRelativeFilename() const { return relativeFilename_; }

    // The last component, of the full form or else of the relative one.
    path getFilename() const;
    // The extension, of the full form or else of the relative one.
    std::string getExtension() const;

    void toStream(std::ostream& out, int indent) const override;

private:
    path resolveAgainst(const path& relative, const Workdir& workdir) const;
    path relativeTo(const path& workdir) const;
    void logFilenames(const std::string& heading) const;

    path fullFilename_;
    path relativeFilename_;
};

} // namespace Prim

#endif
