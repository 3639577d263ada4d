#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSIONSYNTAX_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSIONSYNTAX_H

#include <string>

namespace Tessaly {

// How each node is spelt in a formula, shared by the grammar (which also accepts
// synonyms) and the writer (which writes these spellings only).
class ImageExpressionSyntax {
public:
    // The operator levels, loosest first; everything that is not an infix operator is a
    // primary.
    enum Level { Or = 1, And, Equality, Relational, Additive, Multiplicative, Power, Catch, Primary };

    // The operator, function name or bracket that spells a node ("+", "sqrt", "[<=",
    // "nbcount"); empty for the nodes spelt by their contents (numbers, identifiers).
    static std::string getSpelling(const std::string& nodeName);
    // The level of an infix operator node, Primary for every other node.
    static Level getLevel(const std::string& nodeName);
};

} // namespace Tessaly

#endif
