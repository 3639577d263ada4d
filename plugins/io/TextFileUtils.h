#ifndef VRK_PLUGINS_IO_TEXTFILEUTILS_H
#define VRK_PLUGINS_IO_TEXTFILEUTILS_H

#include "plugins/prim/files/FilenamedFunctor.h"
#include "plugins/prim/files/FilenamedFunctorUtils.h"

#include <boost/filesystem/path.hpp>

#include <set>
#include <string>

namespace Io {

// What the functors that save and load text files share: their file ports and the file
// that those ports name in the current pass.
class TextFileUtils {
public:
    // "filename", "suffixDigits", "step" and "workdir", in this order.
    // The verifier of a text-file functor: `check` (a check of the verifier adapter)
    // with the extensions of text files.
    using Check = Prim::FilenamedFunctorUtils::Check;
    static Prim::FilenamedFunctor::Verifier verifierOf(Check check);
    static void addFilePorts(VRK::Functor& functor, const std::string& filenameDescription);
    // The complete path of the file of this pass: numbered by the step when one is bound
    // and digits are asked for, inside the work directory when there is one.
    static boost::filesystem::path getFile(const Prim::FilenamedFunctor& functor);
};

} // namespace Io

#endif
