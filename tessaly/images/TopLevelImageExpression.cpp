#include "tessaly/images/TopLevelImageExpression.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/ExecutionAbortedException.h"
#include "base/error/IllegalDataException.h"
#include "tessaly/images/AbortRequest.h"
#include "tessaly/images/DefaultImageExpressionWriter.h"

#include <cassert>
#include <sstream>

namespace Tessaly {

TopLevelImageExpression::TopLevelImageExpression(
    const ImageExpressionPtr& root, const std::shared_ptr<ImageExpressionDictionary>& dictionary,
    bool compileNow)
    : root_(root), dictionary_(dictionary)
{
    assert(root != 0 && "expression != 0");
    assert(dictionary != 0 && "dictionary != 0");
    if (compileNow)
        compile();
}

void TopLevelImageExpression::compile()
{
    const EntityKind kinds[] = {EntityKind::Image, EntityKind::Table, EntityKind::Value};
    std::set<int> found[3];
    root_->getImageDependencies(found[int(EntityKind::Image)]);
    root_->getTableDependencies(found[int(EntityKind::Table)]);
    root_->getValueDependencies(found[int(EntityKind::Value)]);
    for (EntityKind kind : kinds)
        for (int index : found[int(kind)])
            if (index < 1 || index > dictionary_->getCount(kind))
                VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
                    "The expression \"" + toString() + "\" uses " + ImageExpressionDictionary::getKindWord(kind)
                    + " index " + std::to_string(index) + ", which its dictionary does not hold.");
    for (EntityKind kind : kinds)
        dependencies_[int(kind)] = std::move(found[int(kind)]);
    lineAndColumnNeeded_ = root_->isLineAndColumnNeeded();
    compiled_ = true;
}

const std::set<int>& TopLevelImageExpression::getDependencies(EntityKind kind) const
{
    assert(compiled_ && "compiled_");
    return dependencies_[int(kind)];
}

double TopLevelImageExpression::evaluate(const EvaluationContext& context) const
{
    assert(compiled_ && "compiled_");
    try {
        return root_->evaluate(context);
    } catch (const AbortRequest&) {
        raiseAborted();
    }
}

void TopLevelImageExpression::raiseAborted() const
{
    VRK::ExceptionUtils::raise<VRK::ExecutionAbortedException>("The expression \"" + toString()
                                                               + "\" called abort.");
}

std::string TopLevelImageExpression::toString() const
{
    std::ostringstream out;
    DefaultImageExpressionWriter::write(*this, out, "", 0);
    return out.str();
}

} // namespace Tessaly
