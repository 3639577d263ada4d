#include "tessaly/images/DefaultImageExpressionWriter.h"

#include "tessaly/images/BinaryExpression.h"
#include "tessaly/images/CompoundNodes.h"
#include "tessaly/images/ImageExpressionSyntax.h"
#include "tessaly/images/IndexedExpression.h"
#include "tessaly/images/LeafNodes.h"
#include "tessaly/images/NeighborhoodNodes.h"
#include "tessaly/images/NullaryExpression.h"
#include "tessaly/images/TableExpression.h"
#include "tessaly/images/TopLevelImageExpression.h"
#include "tessaly/images/UnaryExpression.h"

#include <cassert>
#include <charconv>
#include <cmath>
#include <string>
#include <vector>

namespace Tessaly {

namespace {

using Level = ImageExpressionSyntax::Level;

// Writes one node at a time. `closed_` says whether the text written next is followed
// by nothing that could extend it: a conditional's else branch reaches as far right as
// it can, so a conditional followed by more text takes parentheses.
class TextWriter : public ImageExpressionVisitor {
public:
    TextWriter(std::ostream& out, const ImageExpressionDictionary& dictionary)
        : out_(out), dictionary_(dictionary)
    {
    }

    void write(const ImageExpression& node, bool parenthesised, bool closed)
    {
        if (parenthesised)
            out_ << '(';
        const bool outer = closed_;
        closed_ = parenthesised || closed;
        node.acceptVisit(*this);
        closed_ = outer;
        if (parenthesised)
            out_ << ')';
    }

    void visit(const Nodes::Value& node) override
    {
        out_ << DefaultImageExpressionWriter::formatReal(node.getValue());
    }

    void visit(const NullaryExpression& node) override { out_ << spelling(node); }

    void visit(const IndexedExpression& node) override
    {
        const std::string name = entity(node.getKind(), node.getIndex());
        const std::string function = spelling(node);
        if (function.empty())
            out_ << name;
        else
            out_ << function << '(' << name << ')';
    }

    void visit(const Nodes::TableNamedValue& node) override
    {
        out_ << entity(EntityKind::Table, node.getIndex()) << "[\"" << node.getKeyName() << "\"]";
    }

    void visit(const UnaryExpression& node) override
    {
        const std::string name = node.getName();
        if (name == "UnaryMinus" || name == "BooleanNot") {
            out_ << spelling(node) << (name == "BooleanNot" ? " " : "");
            write(node.getOperand(), levelOf(node.getOperand()) < ImageExpressionSyntax::Primary,
                  closed_);
            return;
        }
        out_ << spelling(node);
        arguments({&node.getOperand()});
    }

    void visit(const TableExpression& node) override
    {
        out_ << entity(EntityKind::Table, node.getTable()) << spelling(node);
        write(node.getKey(), false, true);
        out_ << ']';
    }

    void visit(const BinaryExpression& node) override
    {
        const Level level = levelOf(node);
        if (level == ImageExpressionSyntax::Primary) {
            out_ << spelling(node);
            arguments({&node.getLeft(), &node.getRight()});
            return;
        }
        // A chain (1 + 2 - 3 ...) goes one node deeper per term down its left side: its
        // links are gathered in a loop and written from the bottom up, not by recursion.
        std::vector<const BinaryExpression*> links{&node};
        while (const BinaryExpression* below = infixBelow(*links.back()))
            links.push_back(below);
        const bool outerClosed = closed_;
        const BinaryExpression& bottom = *links.back();
        write(bottom.getLeft(), leftParenthesised(bottom), false);
        for (auto link = links.rbegin(); link != links.rend(); ++link) {
            out_ << ' ' << spelling(**link) << ' ';
            write((*link)->getRight(), rightParenthesised(**link),
                  *link == &node ? outerClosed : false);
        }
    }

    void visit(const Nodes::ImageValue2& node) override
    {
        out_ << entity(EntityKind::Image, node.getImage()) << '[';
        write(node.getLeft(), false, true);
        out_ << ", ";
        write(node.getRight(), false, true);
        out_ << ']';
    }

    void visit(const Nodes::IfThenElse& node) override
    {
        const bool parenthesised = !closed_;
        if (parenthesised)
            out_ << '(';
        out_ << "if ";
        write(node.getChild(0), false, true);
        out_ << " then ";
        write(node.getChild(1), false, true);
        out_ << " else ";
        write(node.getChild(2), false, parenthesised || closed_);
        if (parenthesised)
            out_ << ')';
    }

    void visit(const NeighborhoodQuaternaryExpression& node) override
    {
        out_ << spelling(node) << '(' << entity(EntityKind::Image, node.getImage()) << ", ";
        if (const auto* convolution =
                dynamic_cast<const Nodes::NeighborhoodConvolution*>(&node))
            out_ << entity(EntityKind::Table, convolution->getTable()) << ", ";
        arguments({&node.getChild(0), &node.getChild(1), &node.getChild(2), &node.getChild(3)},
                  false);
    }

private:
    void arguments(std::initializer_list<const ImageExpression*> list, bool open = true)
    {
        if (open)
            out_ << '(';
        const char* separator = "";
        for (const ImageExpression* argument : list) {
            out_ << separator;
            write(*argument, false, true);
            separator = ", ";
        }
        out_ << ')';
    }

    // `^` groups to the right, every other infix operator to the left.
    static bool leftParenthesised(const BinaryExpression& node)
    {
        const Level level = levelOf(node);
        const Level left = levelOf(node.getLeft());
        return level == ImageExpressionSyntax::Power ? left <= level : left < level;
    }
    static bool rightParenthesised(const BinaryExpression& node)
    {
        const Level level = levelOf(node);
        const Level right = levelOf(node.getRight());
        return level == ImageExpressionSyntax::Power ? right < level : right <= level;
    }
    // The infix operator that is the left operand of `node`, written without
    // parentheses; null where there is none.
    static const BinaryExpression* infixBelow(const BinaryExpression& node)
    {
        const auto* left = dynamic_cast<const BinaryExpression*>(&node.getLeft());
        if (!left || levelOf(*left) == ImageExpressionSyntax::Primary || leftParenthesised(node))
            return nullptr;
        return left;
    }

    // A negative number reads back as a negation, which binds as a primary does.
    static Level levelOf(const ImageExpression& node)
    {
        return ImageExpressionSyntax::getLevel(node.getName());
    }
    static std::string spelling(const ImageExpression& node)
    {
        return ImageExpressionSyntax::getSpelling(node.getName());
    }
    std::string entity(EntityKind kind, int index) const
    {
        return dictionary_.getSpelling(kind, index);
    }

    std::ostream& out_;
    const ImageExpressionDictionary& dictionary_;
    bool closed_ = true;
};

} // namespace

std::ostream& DefaultImageExpressionWriter::write(const TopLevelImageExpression& expression,
                                                  std::ostream& out, const std::string&,
                                                  int indent)
{
    for (int i = 0; i < indent; ++i)
        out << "    ";
    TextWriter(out, expression.getDictionary()).write(expression.getRoot(), false, true);
    return out;
}

// An infinity, which only a literal too large for a double gives, is written as such
// a literal.
std::string DefaultImageExpressionWriter::formatReal(double value)
{
    assert(!std::isnan(value) && "!std::isnan(value)");
    if (std::isinf(value))
        return value > 0 ? "1e999" : "-1e999";
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    assert(result.ec == std::errc() && "result.ec == std::errc()");
    return std::string(buffer, result.ptr);
}

} // namespace Tessaly
