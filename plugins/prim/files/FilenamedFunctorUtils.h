#ifndef VRK_PLUGINS_PRIM_FILES_FILENAMEDFUNCTORUTILS_H
#define VRK_PLUGINS_PRIM_FILES_FILENAMEDFUNCTORUTILS_H

#include "plugins/prim/files/FilenamedFunctor.h"

#include <boost/filesystem/path.hpp>

#include <memory>
#include <set>
#include <string>

namespace Prim {

// What the functors that read or write a file of their own kind share, in every plugin:
// their file ports and the file that those ports name in the current pass.
class FilenamedFunctorUtils {
public:
    // A check of the verifier adapter.
    using Check = void (*)(const std::set<std::string>&, VRK::Functor*, const std::string&,
                           const std::string&, const std::string&);
    // The verifier of a filenamed functor: `check` with `extensions`.
    static FilenamedFunctor::Verifier verifierOf(Check check,
                                                 const std::set<std::string>& extensions);
    // "filename" (of `fileType`), "suffixDigits", "step" and "workdir", in this order.
    static void addFilePorts(VRK::Functor& functor, const std::shared_ptr<VRK::BaseType>& fileType,
                             const std::string& filenameDescription);
    // The complete path of the file of this pass: numbered by the step when one is bound
    // and digits are asked for, inside the work directory when there is one.
    static boost::filesystem::path getFile(const FilenamedFunctor& functor);
};

} // namespace Prim

#endif
