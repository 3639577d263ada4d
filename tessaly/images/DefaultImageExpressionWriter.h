#ifndef VRK_TESSALY_IMAGES_DEFAULTIMAGEEXPRESSIONWRITER_H
#define VRK_TESSALY_IMAGES_DEFAULTIMAGEEXPRESSIONWRITER_H

#include <ostream>
#include <string>

namespace Tessaly {

class TopLevelImageExpression;

// Writes a formula on one line, at `indent` levels of four blanks, in the form that
// DefaultImageExpressionReader reads back into the same tree: the fewest parentheses
// that keep the tree, reals in the shortest text that reads back to the same double.
// A negative number in the tree, which no formula spells, is written as a negated one.
class DefaultImageExpressionWriter {
public:
    // `filename` names the file being written, for messages.
    static std::ostream& write(const TopLevelImageExpression& expression, std::ostream& out,
                               const std::string& filename, int indent);
    // The shortest text of a real that reads back to it.
    static std::string formatReal(double value);
};

} // namespace Tessaly

#endif
