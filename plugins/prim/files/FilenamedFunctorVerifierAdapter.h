#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEDFUNCTORVERIFIERADAPTER_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEDFUNCTORVERIFIERADAPTER_H

#include <boost/filesystem/path.hpp>

#include <set>
#include <string>

namespace VRK {
class Functor;
}

namespace Prim {

// The checks that a filenamed functor's file can be used, bound as its verifier with
// the extensions its kind of file may have. They look only at a typed-in filename; a
// name that another functor produces is known at run time, where the checks of one
// concrete file apply.
class FilenamedFunctorVerifierAdapter {
public:
    using path = boost::filesystem::path;

    // The extension is supported, and the file exists; when its name follows the loop
    // step, only its folder is known to have to exist.
    static void canReadFile(const std::set<std::string>& extensions, VRK::Functor* functor,
                            const std::string& filenamePort, const std::string& suffixDigitsPort,
                            const std::string& stepPort);
    // The extension is supported, the folder exists and the file may be written there.
    static void canWriteFile(const std::set<std::string>& extensions, VRK::Functor* functor,
                             const std::string& filenamePort, const std::string& suffixDigitsPort,
                             const std::string& stepPort);

    static void requireFolder(const path& file);
    static void requireReadable(const path& file);
    static void requireWritable(const path& file);

private:
    static void checkFile(const std::set<std::string>& extensions, VRK::Functor* functor,
                          const std::string& filenamePort, const std::string& suffixDigitsPort,
                          const std::string& stepPort, void (*checkWholeName)(const path&));
};

} // namespace Prim

#endif
