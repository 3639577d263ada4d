#include "plugins/prim/formula/FormulaFunctor.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/formula/ImageExpressionData.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/formula/ImageExpressionType.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Prim {

namespace {

const char* const ExpressionPort = "expression";

} // namespace

FormulaFunctor::FormulaFunctor(const std::string& name, const std::string& description,
                               const std::string& expressionDescription, const char* defaultFormula)
    : VRK::ContainerFunctor(name, description, nullptr)
{
    if (!defaultFormula) {
        addInputPort(ExpressionPort, expressionDescription, ImageExpressionType::getInstance(),
                     false);
        return;
    }
    auto editor = addOptionalInputPort(ExpressionPort, expressionDescription,
                                       ImageExpressionType::getInstance(), false, 0);
    PrimEditorUtils::editorOf<ImageExpressionEditor>(editor.get())
        .setDefaultFormula(defaultFormula);
}

FormulaFunctor::~FormulaFunctor() = default;

void FormulaFunctor::runContainerImpl()
{
    VRK::ContainerFunctorUtils::runFunctorsInContainer(*this, VRK::warning);
    try {
        calculate();
    } catch (VRK::Exception& error) {
        error.setScriptPosition(getPosition());
        throw;
    }
}

Tessaly::TopLevelImageExpression FormulaFunctor::getCompiledExpression() const
{
    Tessaly::TopLevelImageExpression expression =
        *getInputPortValue<ImageExpressionData>(ExpressionPort);
    expression.compile();
    return expression;
}

void FormulaFunctor::refuse(const Tessaly::TopLevelImageExpression& expression,
                            const std::string& problem)
{
    VRK::ExceptionUtils::raise<VRK::Exception>("The expression \"" + expression.toString() + "\" "
                                               + problem);
}

} // namespace Prim
