#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSIONVISITOR_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSIONVISITOR_H

namespace Tessaly {

class NullaryExpression;
class IndexedExpression;
class UnaryExpression;
class BinaryExpression;
class TableExpression;
class NeighborhoodQuaternaryExpression;
namespace Nodes {
class Value;
class ImageValue2;
class IfThenElse;
class TableNamedValue;
} // namespace Nodes

// Visits a node by its shape; nodes of one shape differ by their name.
class ImageExpressionVisitor {
public:
    ImageExpressionVisitor() = default;
    ImageExpressionVisitor(const ImageExpressionVisitor&) = default;
    ImageExpressionVisitor& operator=(const ImageExpressionVisitor&) = default;
    virtual ~ImageExpressionVisitor();

    virtual void visit(const Nodes::Value& node) = 0;
    virtual void visit(const NullaryExpression& node) = 0;
    virtual void visit(const IndexedExpression& node) = 0;
    virtual void visit(const Nodes::TableNamedValue& node) = 0;
    virtual void visit(const UnaryExpression& node) = 0;
    virtual void visit(const TableExpression& node) = 0;
    virtual void visit(const BinaryExpression& node) = 0;
    virtual void visit(const Nodes::ImageValue2& node) = 0;
    virtual void visit(const Nodes::IfThenElse& node) = 0;
    virtual void visit(const NeighborhoodQuaternaryExpression& node) = 0;
};

} // namespace Tessaly

#endif
