#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSION_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSION_H

#include "tessaly/images/EntityKind.h"

#include <cstddef>
#include <memory>
#include <set>
#include <vector>

namespace Tessaly {

class ImageExpressionVisitor;
struct EvaluationContext;

// A node of a formula tree. A parent owns its children; a tree is never changed after
// it is built, so subtrees may be shared. A chain of terms (1 + 1 + ... + 1) makes the
// tree one node deeper per term, so nothing walks a whole tree by recursion: walks go
// through ImageExpressionWalk, a tree is freed one node at a time, and chains are
// evaluated in a loop (BinaryExpression).
class ImageExpression {
public:
    ImageExpression() = default;
    ImageExpression(const ImageExpression&) = delete;
    ImageExpression& operator=(const ImageExpression&) = delete;
    virtual ~ImageExpression();

    // The value at one cell; NaN stands for null.
    virtual double evaluate(const EvaluationContext& context) const = 0;

    // Add the dictionary indexes that the subtree uses.
    void getImageDependencies(std::set<int>& indexes) const;
    void getTableDependencies(std::set<int>& indexes) const;
    void getValueDependencies(std::set<int>& indexes) const;
    void getDependencies(EntityKind kind, std::set<int>& indexes) const;
    // Whether some node of the subtree reads the cell's line and column.
    bool isLineAndColumnNeeded() const;

    virtual void acceptVisit(ImageExpressionVisitor& visitor) const = 0;

    // The node's class name ("Plus"), by which writers and tests tell nodes apart.
    virtual const char* getName() const = 0;
    virtual size_t getChildCount() const { return 0; }
    virtual const ImageExpression& getChild(size_t index) const;

    // The node's own part of the above, its children left out: the indexes of `kind`
    // that it names itself, and whether it reads the cell's place itself.
    virtual void addOwnIndexes(EntityKind kind, std::set<int>& indexes) const;
    virtual bool needsOwnCell() const { return false; }

protected:
    using Owned = std::vector<std::shared_ptr<ImageExpression>>;
    // Moves the node's children into `pending`, leaving it none.
    virtual void releaseChildren(Owned& pending);
    // Frees the nodes in `pending` and, one at a time, every node below them that they
    // alone own: a destructor that let each node free its children would recurse as
    // deep as the tree.
    static void freeAll(Owned& pending);
};

using ImageExpressionPtr = std::shared_ptr<ImageExpression>;

} // namespace Tessaly

#endif
