#ifndef VRK_TESSALY_IMAGES_TOPLEVELIMAGEEXPRESSION_H
#define VRK_TESSALY_IMAGES_TOPLEVELIMAGEEXPRESSION_H

#include "base/data/BaseTopLevelImageExpression.h"
#include "tessaly/images/EntityKind.h"
#include "tessaly/images/ImageExpression.h"
#include "tessaly/images/ImageExpressionDictionary.h"

#include <memory>
#include <set>
#include <string>

namespace Tessaly {

struct EvaluationContext;

// A whole formula: its tree and the dictionary of what it names.
class TopLevelImageExpression : public VRK::BaseTopLevelImageExpression {
public:
    // With `compileNow`, compiles at once.
    TopLevelImageExpression(const ImageExpressionPtr& root,
                            const std::shared_ptr<ImageExpressionDictionary>& dictionary,
                            bool compileNow);

    const ImageExpression& getRoot() const { return *root_; }
    const ImageExpressionDictionary& getDictionary() const { return *dictionary_; }

    // Gathers the indexes that the tree uses and checks that the dictionary holds each;
    // a formula must be compiled before it is evaluated.
    void compile();
    bool isCompiled() const { return compiled_; }
    // The indexes of one kind that the tree uses, ascending.
    const std::set<int>& getDependencies(EntityKind kind) const;
    bool isLineAndColumnNeeded() const { return lineAndColumnNeeded_; }

    // The value at one cell, NaN for null. "abort" raises an exception that names the
    // formula.
    double evaluate(const EvaluationContext& context) const;
    // The error that "abort" raises, for evaluations that catch its AbortRequest
    // themselves.
    [[noreturn]] void raiseAborted() const;

    // The formula as DefaultImageExpressionWriter writes it.
    std::string toString() const;

private:
    ImageExpressionPtr root_;
    std::shared_ptr<ImageExpressionDictionary> dictionary_;
    bool compiled_ = false;
    bool lineAndColumnNeeded_ = false;
    std::set<int> dependencies_[3];
};

} // namespace Tessaly

#endif
