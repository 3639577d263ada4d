#include "plugins/calc/CalculateValueFunctor.h"

#include "plugins/prim/environment/NamedValueRegistratorType.h"
#include "plugins/prim/environment/NumberedValueRegistratorType.h"
#include "plugins/prim/environment/PrimEnvironmentUtils.h"
#include "plugins/prim/values/numbers/DoubleData.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "tessaly/images/EvaluationContext.h"

#include <cassert>
#include <cmath>
#include <map>

namespace Calc {

namespace {

const char* const ResultPort = "result";

} // namespace

CalculateValue::CalculateValue()
    : Prim::FormulaFunctor("CalculateValue",
                           "Calculates a value from a formula over the values registered "
                           "inside it.",
                           "The formula, over numbered (v1) and named ($name) values.", nullptr)
{
    addOutputPort(ResultPort, "The value of the formula.", Prim::DoubleType::getInstance());
}

CalculateValue::~CalculateValue() = default;

bool CalculateValue::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return Prim::RegistratorType::anyRegisters<Prim::NumberedValueRegistratorType,
                                               Prim::NamedValueRegistratorType>(*functor);
}

void CalculateValue::calculate()
{
    const Tessaly::TopLevelImageExpression expression = getCompiledExpression();
    if (!expression.getDependencies(Tessaly::EntityKind::Image).empty())
        refuse(expression, "reads an image, which CalculateValue does not provide.");
    if (!expression.getDependencies(Tessaly::EntityKind::Table).empty())
        refuse(expression, "reads a table, which CalculateValue does not provide.");
    std::map<std::string, double> environment;
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment2(environment, *this);
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment(environment, *this);
    std::vector<double> values;
    Prim::PrimEnvironmentUtils::flattenValueEnvironment(values, environment, expression.getRoot(),
                                                        expression.getDictionary());
    const std::vector<double> none;
    const std::vector<const Tessaly::LookupTable*> noTables;
    const std::vector<const Tessaly::Image*> noImages;
    const double value = expression.evaluate({none, values, noTables, noImages, 0, 0});
    if (std::isnan(value))
        refuse(expression, "gives no value (null).");
    if (std::isinf(value))
        refuse(expression, "gives an infinite value.");
    setOutputPortValue<Prim::DoubleData>(ResultPort, value);
}

} // namespace Calc
