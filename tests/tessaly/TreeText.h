#ifndef VRK_TESTS_TESSALY_TREETEXT_H
#define VRK_TESTS_TESSALY_TREETEXT_H

#include "tessaly/images/CompoundNodes.h"
#include "tessaly/images/DefaultImageExpressionReader.h"
#include "tessaly/images/DefaultImageExpressionWriter.h"
#include "tessaly/images/ImageExpressionDictionary.h"
#include "tessaly/images/IndexedExpression.h"
#include "tessaly/images/LeafNodes.h"
#include "tessaly/images/NeighborhoodNodes.h"
#include "tessaly/images/TableExpression.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <sstream>
#include <string>

namespace Tessaly {
namespace Testing {

// A tree in prefix form, with the dictionary's spellings in place of indexes, so that
// trees read from different texts compare whatever order their dictionaries took:
// "Minus(Minus(i1,i2),#a)".
inline std::string treeText(const ImageExpression& node, const ImageExpressionDictionary& names)
{
    if (const auto* value = dynamic_cast<const Nodes::Value*>(&node))
        return DefaultImageExpressionWriter::formatReal(value->getValue());
    std::string text = node.getName();
    if (const auto* indexed = dynamic_cast<const IndexedExpression*>(&node))
        text += ":" + names.getSpelling(indexed->getKind(), indexed->getIndex());
    if (const auto* named = dynamic_cast<const Nodes::TableNamedValue*>(&node))
        text += ":" + named->getKeyName();
    if (const auto* lookup = dynamic_cast<const TableExpression*>(&node))
        text += ":" + names.getSpelling(EntityKind::Table, lookup->getTable());
    if (const auto* at = dynamic_cast<const Nodes::ImageValue2*>(&node))
        text += ":" + names.getSpelling(EntityKind::Image, at->getImage());
    if (const auto* window = dynamic_cast<const NeighborhoodQuaternaryExpression*>(&node))
        text += ":" + names.getSpelling(EntityKind::Image, window->getImage());
    if (const auto* convolution = dynamic_cast<const Nodes::NeighborhoodConvolution*>(&node))
        text += ":" + names.getSpelling(EntityKind::Table, convolution->getTable());
    if (node.getChildCount() == 0)
        return text;
    text += "(";
    for (size_t i = 0; i < node.getChildCount(); ++i)
        text += (i ? "," : "") + treeText(node.getChild(i), names);
    return text + ")";
}

inline std::shared_ptr<TopLevelImageExpression> readFormula(const std::string& text)
{
    std::istringstream in(text);
    return DefaultImageExpressionReader::read(in, "formula");
}

inline std::string treeText(const TopLevelImageExpression& expression)
{
    return treeText(expression.getRoot(), expression.getDictionary());
}

inline std::string writeFormula(const TopLevelImageExpression& expression)
{
    std::ostringstream out;
    DefaultImageExpressionWriter::write(expression, out, "", 0);
    return out.str();
}

} // namespace Testing
} // namespace Tessaly

#endif
