#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSION_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSION_H

#include <cstddef>
#include <memory>
#include <set>

namespace Tessaly {

class ImageExpressionVisitor;
struct EvaluationContext;

// A node of a formula tree. A parent owns its children; a tree is never changed after
// it is built, so subtrees may be shared.
class ImageExpression {
public:
    ImageExpression() = default;
    ImageExpression(const ImageExpression&) = delete;
    ImageExpression& operator=(const ImageExpression&) = delete;
    virtual ~ImageExpression();

    // The value at one cell; NaN stands for null.
    virtual double evaluate(const EvaluationContext& context) const = 0;

    // Add the dictionary indexes that the subtree uses.
    virtual void getImageDependencies(std::set<int>& indexes) const;
    virtual void getTableDependencies(std::set<int>& indexes) const;
    virtual void getValueDependencies(std::set<int>& indexes) const;
    virtual bool isLineAndColumnNeeded() const;

    virtual void acceptVisit(ImageExpressionVisitor& visitor) const = 0;

    // The node's class name ("Plus"), by which writers and tests tell nodes apart.
    virtual const char* getName() const = 0;
    virtual size_t getChildCount() const { return 0; }
    virtual const ImageExpression& getChild(size_t index) const;
};

using ImageExpressionPtr = std::shared_ptr<ImageExpression>;

} // namespace Tessaly

#endif
