#include "tessaly/images/ImageExpressionWalk.h"

#include "tessaly/images/ImageExpression.h"

#include <vector>

namespace Tessaly {

void ImageExpressionWalk::preOrder(const ImageExpression& root, const Enter& enter)
{
    std::vector<const ImageExpression*> pending{&root};
    while (!pending.empty()) {
        const ImageExpression& node = *pending.back();
        pending.pop_back();
        if (!enter(node))
            continue;
        for (size_t i = node.getChildCount(); i > 0; --i)
            pending.push_back(&node.getChild(i - 1));
    }
}

void ImageExpressionWalk::postOrder(const ImageExpression& root, const Enter& enter,
                                    const Leave& leave)
{
    struct Frame {
        const ImageExpression* node;
        size_t nextChild;
    };
    if (!enter(root))
        return;
    std::vector<Frame> open{{&root, 0}};
    while (!open.empty()) {
        Frame& top = open.back();
        if (top.nextChild < top.node->getChildCount()) {
            const ImageExpression& child = top.node->getChild(top.nextChild++);
            if (enter(child))
                open.push_back({&child, 0});
            continue;
        }
        const ImageExpression& done = *top.node;
        open.pop_back();
        leave(done);
    }
}

} // namespace Tessaly
