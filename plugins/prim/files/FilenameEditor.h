#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEEDITOR_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEEDITOR_H

#include "base/data/DataEditor.h"
#include "plugins/prim/files/CompoundFilename.h"

#include <boost/filesystem/path.hpp>
#include <boost/optional.hpp>

#include <string>

namespace VRK {
class InputPort;
}

namespace Prim {

// Edits the name of a file that a functor reads or writes. The filename is kept as a
// compound filename and resolved against the work directory that the owner's "workdir"
// input brings, looked up again each time the editor is prepared. A derived editor
// names its kind of file and packs the data class of its type.
class FilenameEditor : public VRK::DataEditor {
public:
    using path = boost::filesystem::path;
    using Workdir = boost::optional<path>;

    FilenameEditor(const FilenameEditor&) = default;
    FilenameEditor& operator=(const FilenameEditor&) = default;
    ~FilenameEditor() override;

    // The filename between double quotes, as a script writes it.
    void toStream(std::ostream& out, int indent) const override;
    void unpackData(const VRK::BaseData& data) override;
    // Looks up the work directory, then re-derives the filenames for it.
    void prepare() override;

    // The word that names the kind of file in messages.
    virtual std::string getAlias() const;
    virtual std::string getDefaultFilename() const;
    virtual bool isExtensionAccepted(const std::string& extension) const;

    // `delay`: the script is being read, so the work directory is not known yet and a
    // relative filename is kept to be resolved at the next update. A relative filename
    // whose owner sits inside a work directory that is not known yet is kept so too.
    void setFilename(std::string filename, bool delay);
    // Whether the filename was last set as a complete path, which writers keep as it is.
    bool isGivenComplete() const { return givenComplete_; }

    // The filename as a script writes it: the relative form, or else the full one.
    std::string getFilename() const;
    std::string getRelativeFilename() const;
    std::string getFullFilename() const;
    // The work directory for display: empty when there is none, a remark appendable
    // to a message when it is expected but not yet known.
    std::string getWorkdir() const;

    CompoundFilename& getCompoundFilename() { return filename_; }
    const CompoundFilename& getCompoundFilename() const { return filename_; }
    // None: no work directory applies; an empty path: one applies but is not known yet.
    const Workdir& getWorkdirPath() const { return workdir_; }

    // Looks up the work directory through the owner's "workdir" input; false, leaving
    // the previous one, when that failed (the failure is logged, never thrown). Without
    // `lightRun`, a work directory that has not been produced yet counts as unknown.
    bool updateWorkdir(bool lightRun = true);

protected:
    FilenameEditor(const std::string& name, const std::string& description,
                   const std::shared_ptr<VRK::BaseType>& type);

private:
    void findWorkdir(bool lightRun);
    bool awaitsWorkdir() const;
    static void runWorkdirFunctor(VRK::InputPort* workdirPort);

    CompoundFilename filename_;
    Workdir workdir_;
    bool givenComplete_ = false;
};

} // namespace Prim

#endif
