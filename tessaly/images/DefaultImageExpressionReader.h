#ifndef VRK_TESSALY_IMAGES_DEFAULTIMAGEEXPRESSIONREADER_H
#define VRK_TESSALY_IMAGES_DEFAULTIMAGEEXPRESSIONREADER_H

#include "tessaly/images/TopLevelImageExpression.h"

#include <istream>
#include <memory>
#include <string>

namespace Tessaly {

// Reads a whole text as one formula, as DefaultImageExpressionWriter writes it.
class DefaultImageExpressionReader {
public:
    // Throws a VRK::ParseError located in `filename` when the text is not exactly one
    // formula.
    static std::shared_ptr<TopLevelImageExpression> read(std::istream& in,
                                                         const std::string& filename);
};

} // namespace Tessaly

#endif
