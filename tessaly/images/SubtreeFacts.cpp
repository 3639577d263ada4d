#include "tessaly/images/SubtreeFacts.h"

#include "tessaly/images/ImageExpressionWalk.h"
#include "tessaly/images/NeighborhoodQuaternaryExpression.h"

#include <cassert>
#include <cstring>
#include <set>
#include <string>

namespace Tessaly {

namespace {

// Nodes between two calls of the checkpoint: a few thousand take well under a
// millisecond.
constexpr size_t NodesPerCheckpoint = 4096;

} // namespace

SubtreeFacts::SubtreeFacts(const ImageExpression& root, const std::function<void()>& checkpoint)
{
    size_t walked = 0;
    // A subtree shared by several parents is surveyed once.
    const auto unknown = [this](const ImageExpression& node) { return facts_.count(&node) == 0; };
    ImageExpressionWalk::postOrder(root, unknown, [&](const ImageExpression& node) {
        if (checkpoint && ++walked % NodesPerCheckpoint == 0)
            checkpoint();
        unsigned char facts = ownFacts(node);
        for (size_t i = 0; i < node.getChildCount(); ++i)
            facts |= factsOf(node.getChild(i));
        facts_[&node] = facts;
    });
}

unsigned char SubtreeFacts::ownFacts(const ImageExpression& node)
{
    static const std::set<std::string> cellNodes = {"ImageValue", "IsNull", "ImageValue2", "Line",
                                                    "Column",     "Rand",   "Abort"};
    const char* name = node.getName();
    unsigned char facts = 0;
    const bool window = dynamic_cast<const NeighborhoodQuaternaryExpression*>(&node) != nullptr;
    if (cellNodes.count(name) != 0 || window)
        facts |= Varies;
    if (window || std::strcmp(name, "ImageValue2") == 0)
        facts |= ReadsAround;
    if (std::strcmp(name, "Abort") == 0 || std::strcmp(name, "Rand") == 0)
        facts |= AbortsOrDraws;
    return facts;
}

unsigned char SubtreeFacts::factsOf(const ImageExpression& node) const
{
    const auto found = facts_.find(&node);
    assert(found != facts_.end() && "a node of the surveyed tree");
    return found->second;
}

} // namespace Tessaly
