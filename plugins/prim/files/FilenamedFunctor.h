#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEDFUNCTOR_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEDFUNCTOR_H

#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/FilenameBanneredFunctor.h"
#include "plugins/prim/files/WorkdirData.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"

#include <boost/filesystem/path.hpp>
#include <boost/optional.hpp>

#include <functional>
#include <string>

namespace Prim {

// A functor that reads or writes one file named on its filename input. The relative
// form of the name follows the functor as it is moved between containers; before a
// run its verifier checks that the file can be used; at run time `prepareFilename`
// gives the file of the current loop step.
class FilenamedFunctor : public FilenameBanneredFunctor<VRK::Functor> {
public:
    using path = boost::filesystem::path;
    // Throws when the file of (functor, filename port, suffix digits port, step port)
    // cannot be used.
    using Verifier = std::function<void(VRK::Functor*, const std::string&, const std::string&,
                                        const std::string&)>;

    FilenamedFunctor(const FilenamedFunctor&) = default;
    FilenamedFunctor& operator=(const FilenamedFunctor&) = default;
    ~FilenamedFunctor() override;

    // The file to open: relative to `workdirOut` when there is a work directory, else
    // complete; with a step and `suffixDigits` above 0, numbered by the step.
    static void prepareFilename(path& result, path& workdirOut, CompoundFilename& filename,
                                const boost::optional<WorkdirData>& workdir, int suffixDigits,
                                const boost::optional<NonNegativeIntData>& step);
    // What `prepareFilename` gave, as a complete path: files of an archive lie beside it.
    static path completeFilename(const path& result, const path& workdirOut);

    void onContainerAdded(VRK::FunctorContainer& container) override;
    void onContainerErased() override;
    void onIndirectContainerAdded(VRK::FunctorContainer& container, size_t depth) override;
    void onIndirectContainerErased(size_t depth) override;

    void verify() override;

protected:
    FilenamedFunctor(const std::string& name, const std::string& description,
                     const std::string& filenamePort, const std::string& workdirPort,
                     const Verifier& verifier, const std::string& suffixDigitsPort,
                     const std::string& stepPort, const std::shared_ptr<VRK::BaseType>& type);

private:
    void updateFilenameInWorkdir(VRK::FunctorContainer& container);
    void rebindWorkdir();
    void updateFilename();

    Verifier verifier_;
};

} // namespace Prim

#endif
