#ifndef VRK_TESSALY_IMAGES_SUBTREEFACTS_H
#define VRK_TESSALY_IMAGES_SUBTREEFACTS_H

#include <functional>
#include <unordered_map>

namespace Tessaly {

class ImageExpression;

// What the block program compiler asks of each subtree of a formula, worked out for
// every node of the tree in one walk. Asked afresh at each node, the questions would
// walk each subtree again: time quadratic in the length of a chain of terms.
class SubtreeFacts {
public:
    // `checkpoint`, when set, is called every few thousand nodes, so that a cancelled
    // run is heard while a long formula is surveyed.
    SubtreeFacts(const ImageExpression& root, const std::function<void()>& checkpoint);

    // Whether some node of the subtree differs from cell to cell; abort and rand count
    // as differing, since neither may be worked out once ahead of the cells.
    bool variesByCell(const ImageExpression& node) const { return (factsOf(node) & Varies) != 0; }
    // Whether the subtree holds abort or rand.
    bool abortsOrDraws(const ImageExpression& node) const
    {
        return (factsOf(node) & AbortsOrDraws) != 0;
    }

    // Whether the subtree reads cells away from the current one (windows, explicit
    // places), which may lie on any line.
    bool readsAroundCell(const ImageExpression& node) const
    {
        return (factsOf(node) & ReadsAround) != 0;
    }

private:
    enum Fact : unsigned char { Varies = 1, AbortsOrDraws = 2, ReadsAround = 4 };

    static unsigned char ownFacts(const ImageExpression& node);
    unsigned char factsOf(const ImageExpression& node) const;

    std::unordered_map<const ImageExpression*, unsigned char> facts_;
};

} // namespace Tessaly

#endif
