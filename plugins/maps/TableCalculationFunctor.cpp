#include "plugins/maps/TableCalculationFunctor.h"

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/task/Task.h"
#include "plugins/maps/CalculationEnvironment.h"
#include "plugins/prim/formula/ImageExpressionData.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/formula/ImageExpressionType.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/LookupTableData.h"
#include "tessaly/images/LookupTableType.h"

#include <cassert>

namespace Maps {

namespace {

const char* const ExpressionPort = "expression";
const char* const TablePort = "table";
const char* const ResultPort = "result";

[[noreturn]] void refuse(const Tessaly::TopLevelImageExpression& expression,
                         const std::string& problem)
{
    VRK::ExceptionUtils::raise<VRK::Exception>("The expression \"" + expression.toString() + "\" "
                                               + problem);
}

// Keys evaluated between two checks of the run's cancellation.
constexpr size_t SliceKeys = 4096;

std::shared_ptr<const Tessaly::LookupTable>
evaluateForEachKey(const Tessaly::TopLevelImageExpression& expression,
                   const Tessaly::SourceCalculationInputs& inputs, const Tessaly::LookupTable& keys)
{
    const VRK::Task* task = VRK::Task::getCurrentTask();
    const std::vector<double> noImageValues;
    const std::vector<const Tessaly::Image*> noImages;
    Tessaly::LookupTable::Entries entries;
    Tessaly::LookupTable::ConstIterator iterator = keys.getIterator();
    for (size_t count = 0; iterator.hasNext(); ++count) {
        if (task && count % SliceKeys == 0)
            task->checkCancellation();
        const double key = iterator.next().first;
        entries.emplace_hint(
            entries.end(), key,
            expression.evaluate({noImageValues, inputs.values, inputs.tables, noImages, key, 0}));
    }
    return std::make_shared<const Tessaly::LookupTable>(std::move(entries));
}

} // namespace

TableCalculationFunctor::TableCalculationFunctor(const std::string& name,
                                                 const std::string& description, bool namedTable)
    : VRK::ContainerFunctor(name, description, nullptr), namedTable_(namedTable)
{
    // Optional: left out, the formula reads the first table.
    auto formula = addOptionalInputPort(
        ExpressionPort,
        "The formula, over numbered (t1, v1) and named (%table, $value) tables and "
        "values; line stands for the key.",
        Prim::ImageExpressionType::getInstance(), false, 0);
    Prim::PrimEditorUtils::editorOf<Prim::ImageExpressionEditor>(formula.get())
        .setDefaultFormula(namedTable ? "%table[line]" : "t1[line]");
    if (namedTable)
        addInputPort(TablePort, "The table whose keys the result has; the formula names it %table.",
                     Tessaly::LookupTableType::getInstance(), false);
    addOutputPort(ResultPort, "The table of the formula's value for each key.",
                  Tessaly::LookupTableType::getInstance());
}

TableCalculationFunctor::~TableCalculationFunctor() = default;

bool TableCalculationFunctor::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return CalculationEnvironment::isRegistrator(*functor);
}

void TableCalculationFunctor::runContainerImpl()
{
    VRK::ContainerFunctorUtils::runFunctorsInContainer(*this, VRK::warning);
    std::shared_ptr<const Tessaly::LookupTable> result;
    try {
        result = calculate();
    } catch (VRK::Exception& error) {
        error.setScriptPosition(getPosition());
        throw;
    }
    setOutputPortValue<Tessaly::LookupTableData>(ResultPort, result);
}

// The shared formula is compiled in a copy, so that passes running at once never
// write to it.
std::shared_ptr<const Tessaly::LookupTable> TableCalculationFunctor::calculate()
{
    Tessaly::TopLevelImageExpression expression =
        *getInputPortValue<Prim::ImageExpressionData>(ExpressionPort);
    expression.compile();
    if (!expression.getDependencies(Tessaly::EntityKind::Image).empty())
        refuse(expression, "names a map, which " + getName() + " does not provide.");
    CalculationEnvironment environment(*this);
    std::shared_ptr<const Tessaly::LookupTable> keys;
    if (namedTable_) {
        keys = getInputPortValue<Tessaly::LookupTableData>(TablePort);
        environment.addTable(TablePort, keys);
    }
    const Tessaly::SourceCalculationInputs inputs = environment.flatten(expression);
    if (!namedTable_ && inputs.tables.empty())
        refuse(expression, "names no table, so there are no keys to calculate a table for.");
    return evaluateForEachKey(expression, inputs, keys ? *keys : *inputs.tables.front());
}

} // namespace Maps
