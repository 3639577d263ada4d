// One scanner kind per translation unit, so that the two slow instantiations of the
// grammar can compile side by side.
#include "tessaly/images/ImageExpressionReaderGrammar.ipp"

namespace Tessaly {

template class ImageExpressionReaderGrammar<VRK::ScriptScanner>;

} // namespace Tessaly
