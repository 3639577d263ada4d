#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSIONWALK_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSIONWALK_H

#include <functional>

namespace Tessaly {

class ImageExpression;

// Walks a formula's tree on a stack of its own rather than the call stack: a chain of
// terms (1 + 1 + ... + 1) makes the tree one node deeper per term, so a walk that
// recursed would overflow the call stack on a long enough formula.
class ImageExpressionWalk {
public:
    using Enter = std::function<bool(const ImageExpression&)>;
    using Leave = std::function<void(const ImageExpression&)>;

    // Calls `enter` on each node before its children, left to right; where it returns
    // false the node's children are skipped. A subtree reached twice is walked twice.
    static void preOrder(const ImageExpression& root, const Enter& enter);
    // Calls `leave` on each node after all of its children. Where `enter` returns false
    // the node is skipped with its children, and left neither.
    static void postOrder(const ImageExpression& root, const Enter& enter, const Leave& leave);
};

} // namespace Tessaly

#endif
