#include "plugins/maps/TableCalculationFunctor.h"

#include "base/task/Task.h"
#include "plugins/maps/CalculationEnvironment.h"
#include "tessaly/images/EvaluationContext.h"
#include "tessaly/images/LookupTableData.h"
#include "tessaly/images/LookupTableType.h"

namespace Maps {

namespace {

const char* const TablePort = "table";
const char* const ResultPort = "result";

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
    : MapsFormulaFunctor(name, description,
                         "The formula, over numbered (t1, v1) and named (%table, $value) "
                         "tables and values; line stands for the key.",
                         namedTable ? "%table[line]" : "t1[line]"),
      namedTable_(namedTable)
{
    if (namedTable)
        addInputPort(TablePort, "The table whose keys the result has; the formula names it %table.",
                     Tessaly::LookupTableType::getInstance(), false);
    addOutputPort(ResultPort, "The table of the formula's value for each key.",
                  Tessaly::LookupTableType::getInstance());
}

TableCalculationFunctor::~TableCalculationFunctor() = default;

void TableCalculationFunctor::calculate()
{
    const Tessaly::TopLevelImageExpression expression = getCompiledExpression();
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
    setOutputPortValue<Tessaly::LookupTableData>(
        ResultPort, evaluateForEachKey(expression, inputs, keys ? *keys : *inputs.tables.front()));
}

} // namespace Maps
