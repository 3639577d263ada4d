#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSIONREADERLAZYFUNCTIONS_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSIONREADERLAZYFUNCTIONS_H

// Included by the grammar's translation units only: the tree-building actions.

#include "tessaly/images/ImageExpressionDictionary.h"
#include "tessaly/images/NeighborhoodQuaternaryExpression.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <cassert>
#include <memory>
#include <string>
#include <vector>

namespace Tessaly {
namespace IER {

// What a rule has read for the node it is about to build: the indexes of an image and
// a table, subtrees in the order written, a key name.
struct Operands {
    int image = 0;
    int table = 0;
    std::vector<ImageExpressionPtr> expressions;
    std::string name;
};

// Builds one node class from the operands; symbol tables map spellings to these.
using NodeBuilder = ImageExpressionPtr (*)(const Operands&);

inline const ImageExpressionPtr& operand(const Operands& operands, size_t index)
{
    assert(index < operands.expressions.size() && "index < operands.expressions.size()");
    const ImageExpressionPtr& expression = operands.expressions[index];
    if (index == 0)
        assert(expression != 0 && "expression != 0");
    else
        assert(expression != 0 && "expression2 != 0");
    return expression;
}

inline NeighborhoodQuaternaryExpression::Children window(const Operands& operands)
{
    return {operand(operands, 0), operand(operands, 1), operand(operands, 2), operand(operands, 3)};
}

template <class Node>
struct nullary_expression_impl {
    static ImageExpressionPtr build(const Operands&) { return std::make_shared<Node>(); }
};

// Nodes that hold one index and nothing else (an image read, a registered value).
template <class Node>
struct indexed_expression_impl {
    template <class A>
    struct result {
        using type = ImageExpressionPtr;
    };
    ImageExpressionPtr operator()(int index) const { return std::make_shared<Node>(index); }
    static ImageExpressionPtr build(const Operands& operands)
    {
        return std::make_shared<Node>(operands.image);
    }
};

template <class Node>
struct unary_expression_impl {
    template <class A>
    struct result {
        using type = ImageExpressionPtr;
    };
    ImageExpressionPtr operator()(const ImageExpressionPtr& expression) const
    {
        assert(expression != 0 && "expression != 0");
        return std::make_shared<Node>(expression);
    }
    static ImageExpressionPtr build(const Operands& operands)
    {
        return std::make_shared<Node>(operand(operands, 0));
    }
};

// Two subtrees, or a table index and a key (a table lookup).
template <class Node>
struct binary_expression_impl {
    template <class A, class B>
    struct result {
        using type = ImageExpressionPtr;
    };
    ImageExpressionPtr operator()(const ImageExpressionPtr& expression,
                                  const ImageExpressionPtr& expression2) const
    {
        assert(expression != 0 && "expression != 0");
        assert(expression2 != 0 && "expression2 != 0");
        return std::make_shared<Node>(expression, expression2);
    }
    static ImageExpressionPtr build(const Operands& operands)
    {
        if constexpr (std::is_constructible<Node, int, ImageExpressionPtr>::value)
            return std::make_shared<Node>(operands.table, operand(operands, 0));
        else
            return std::make_shared<Node>(operand(operands, 0), operand(operands, 1));
    }
};

// Three subtrees, or an image index and two coordinates.
template <class Node>
struct ternary_expression_impl {
    static ImageExpressionPtr build(const Operands& operands)
    {
        if constexpr (std::is_constructible<Node, int, ImageExpressionPtr, ImageExpressionPtr>::value)
            return std::make_shared<Node>(operands.image, operand(operands, 0), operand(operands, 1));
        else
            return std::make_shared<Node>(operand(operands, 0), operand(operands, 1),
                                          operand(operands, 2));
    }
};

template <class Node>
struct quinternary_expression_impl {
    static ImageExpressionPtr build(const Operands& operands)
    {
        return std::make_shared<Node>(operands.image, window(operands));
    }
};

template <class Node>
struct sixternary_expression_impl {
    static ImageExpressionPtr build(const Operands& operands)
    {
        return std::make_shared<Node>(operands.image, operands.table, window(operands));
    }
};

template <class Node>
struct named_expression_impl {
    static ImageExpressionPtr build(const Operands& operands)
    {
        return std::make_shared<Node>(operands.table, operands.name);
    }
};

// The lazy calls of the grammar's actions.
struct build_impl {
    template <class A, class B>
    struct result {
        using type = ImageExpressionPtr;
    };
    ImageExpressionPtr operator()(NodeBuilder builder, const Operands& operands) const
    {
        assert(builder != 0 && "builder != 0");
        return builder(operands);
    }
};

struct build_binary_impl {
    template <class A, class B, class C>
    struct result {
        using type = ImageExpressionPtr;
    };
    ImageExpressionPtr operator()(NodeBuilder builder, const ImageExpressionPtr& expression,
                                  const ImageExpressionPtr& expression2) const
    {
        Operands operands;
        operands.expressions = {expression, expression2};
        return build_impl()(builder, operands);
    }
};

struct push_operand_impl {
    template <class A, class B>
    struct result {
        using type = void;
    };
    void operator()(Operands& operands, const ImageExpressionPtr& expression) const
    {
        assert(expression != 0 && "expression != 0");
        operands.expressions.push_back(expression);
    }
};

struct set_image_impl {
    template <class A, class B>
    struct result {
        using type = void;
    };
    void operator()(Operands& operands, int image) const { operands.image = image; }
};

struct set_table_impl {
    template <class A, class B>
    struct result {
        using type = void;
    };
    void operator()(Operands& operands, int table) const { operands.table = table; }
};

// The key name of `t["name"]`, read with its closing quote.
struct set_key_name_impl {
    template <class A, class B, class C>
    struct result {
        using type = void;
    };
    template <class IteratorT>
    void operator()(Operands& operands, IteratorT first, const IteratorT& last) const
    {
        std::string text(first, last);
        assert(!text.empty() && text.back() == '"' && "the key name ends with a quote");
        text.pop_back();
        operands.name = text;
    }
};

struct top_level_expression_impl {
    explicit top_level_expression_impl(const std::shared_ptr<ImageExpressionDictionary>* dictionary)
        : dictionary_(dictionary)
    {
    }
    template <class A>
    struct result {
        using type = std::shared_ptr<TopLevelImageExpression>;
    };
    std::shared_ptr<TopLevelImageExpression> operator()(const ImageExpressionPtr& expression) const
    {
        assert(expression != 0 && "expression != 0");
        return std::make_shared<TopLevelImageExpression>(expression, *dictionary_, false);
    }

private:
    const std::shared_ptr<ImageExpressionDictionary>* dictionary_;
};

} // namespace IER
} // namespace Tessaly

#endif
