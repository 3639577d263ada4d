#ifndef VRK_TESSALY_IMAGES_LEAFNODES_H
#define VRK_TESSALY_IMAGES_LEAFNODES_H

#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/Image.h"
#include "tessaly/images/IndexedExpression.h"
#include "tessaly/images/LookupTable.h"

#include <cmath>
#include <string>

namespace Tessaly {
namespace Nodes {

// A number written in the formula.
class Value : public ImageExpression {
public:
    explicit Value(double value) : value_(value) {}
    double getValue() const { return value_; }
    double evaluate(const EvaluationContext&) const override { return value_; }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
    const char* getName() const override { return "Value"; }

private:
    double value_;
};

// The current cell of an image.
class ImageValue : public IndexedExpression {
public:
    explicit ImageValue(int image) : IndexedExpression(EntityKind::Image, image) {}
    double evaluate(const EvaluationContext& context) const override
    {
        return context.getImageValue(getIndex());
    }
    const char* getName() const override { return "ImageValue"; }
};

// A registered value.
class VariableValue : public IndexedExpression {
public:
    explicit VariableValue(int value) : IndexedExpression(EntityKind::Value, value) {}
    double evaluate(const EvaluationContext& context) const override
    {
        return context.getValue(getIndex());
    }
    const char* getName() const override { return "VariableValue"; }
};

// null(image): the number that marks the image's null cells, to write a null cell on
// purpose; null itself on an image without such a number.
class ImageNullValue : public IndexedExpression {
public:
    explicit ImageNullValue(int image) : IndexedExpression(EntityKind::Image, image) {}
    double evaluate(const EvaluationContext& context) const override
    {
        return context.getImage(getIndex()).getNoDataValue();
    }
    const char* getName() const override { return "ImageNullValue"; }
};

// isnull(image): 1 where the image's current cell is null, else 0.
class IsNull : public IndexedExpression {
public:
    explicit IsNull(int image) : IndexedExpression(EntityKind::Image, image) {}
    double evaluate(const EvaluationContext& context) const override
    {
        return std::isnan(context.getImageValue(getIndex())) ? 1 : 0;
    }
    const char* getName() const override { return "IsNull"; }
};

// t["count"]: a property of the whole table, named by one of LookupTable's key names.
class TableNamedValue : public IndexedExpression {
public:
    TableNamedValue(int table, const std::string& keyName)
        : IndexedExpression(EntityKind::Table, table), keyName_(keyName)
    {
    }
    const std::string& getKeyName() const { return keyName_; }
    double evaluate(const EvaluationContext& context) const override
    {
        return context.getTable(getIndex()).getNamedValue(keyName_);
    }
    void acceptVisit(ImageExpressionVisitor& visitor) const override { visitor.visit(*this); }
    const char* getName() const override { return "TableNamedValue"; }

private:
    std::string keyName_;
};

} // namespace Nodes
} // namespace Tessaly

#endif
