#include "plugins/maps/CalculationEnvironment.h"

#include "base/graph/EnvironmentUtils.h"
#include "base/util/Singleton.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/NamedLookupTableRegistratorType.h"
#include "plugins/maps/NamedMapRegistratorType.h"
#include "plugins/maps/NumberedLookupTableRegistratorType.h"
#include "plugins/maps/NumberedMapRegistratorType.h"
#include "plugins/prim/environment/NamedValueRegistratorType.h"
#include "plugins/prim/environment/NumberedValueRegistratorType.h"
#include "plugins/prim/environment/PrimEnvironmentUtils.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/texts/StringData.h"
#include "tessaly/images/LookupTableData.h"

#include <cassert>

namespace Maps {

namespace {

// Registrations under "PREFIX" and the number, as the dictionary names numbered entries.
struct Numbered {
    const char* prefix;
    std::string operator()(int number) const { return prefix + std::to_string(number); }
};

template <class DataT, class T>
void registerAll(std::map<std::string, std::shared_ptr<const T>>& entities,
                 const VRK::ContainerFunctor& container, const std::string& port,
                 const std::shared_ptr<VRK::BaseType>& numbered,
                 const std::shared_ptr<VRK::BaseType>& named, const char* prefix)
{
    VRK::EnvironmentUtils::registerAllHooksInEnvironment<Prim::IntData, DataT>(
        entities, container, port + "Number", port, numbered, Numbered{prefix});
    VRK::EnvironmentUtils::registerAllHooksInEnvironment<Prim::StringData, DataT>(
        entities, container, port + "Name", port, named, VRK::EnvironmentUtils::SameKey());
}

} // namespace

CalculationEnvironment::CalculationEnvironment(const VRK::ContainerFunctor& container)
{
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment2(values_, container);
    Prim::PrimEnvironmentUtils::registerValuesInEnvironment(values_, container);
    registerAll<MapData>(maps_, container, "map",
                         VRK::Singleton<NumberedMapRegistratorType>::getInstance(),
                         VRK::Singleton<NamedMapRegistratorType>::getInstance(), "i");
    registerAll<Tessaly::LookupTableData>(
        tables_, container, "table",
        VRK::Singleton<NumberedLookupTableRegistratorType>::getInstance(),
        VRK::Singleton<NamedLookupTableRegistratorType>::getInstance(), "t");
}

CalculationEnvironment::CalculationEnvironment() = default;

void CalculationEnvironment::addValue(const std::string& name, double value)
{
    add(values_, name, value);
}

void CalculationEnvironment::addMap(const std::string& name,
                                    const std::shared_ptr<const Tessaly::RasterSource>& map)
{
    add(maps_, name, map);
}

void CalculationEnvironment::addTable(const std::string& name,
                                      const std::shared_ptr<const Tessaly::LookupTable>& table)
{
    add(tables_, name, table);
}

template <class T>
void CalculationEnvironment::add(std::map<std::string, T>& entities, const std::string& name,
                                 const T& entity)
{
    if (!entities.emplace(name, entity).second)
        VRK::ExceptionUtils::raise<VRK::Exception>(
            VRK::EnvironmentUtils::duplicateKeyMessage(name));
}

Tessaly::SourceCalculationInputs
CalculationEnvironment::flatten(const Tessaly::TopLevelImageExpression& expression) const
{
    assert(expression.isCompiled() && "expression.isCompiled()");
    Tessaly::SourceCalculationInputs inputs;
    inputs.images = flattenEntities(maps_, expression, Tessaly::EntityKind::Image);
    inputs.tables = flattenEntities(tables_, expression, Tessaly::EntityKind::Table);
    Prim::PrimEnvironmentUtils::flattenValueEnvironment(
        inputs.values, values_, expression.getRoot(), expression.getDictionary());
    return inputs;
}

// The registrators' checks and messages are those of values: each entity stands in
// them as its place in `all`.
template <class T>
std::vector<const T*> CalculationEnvironment::flattenEntities(
    const std::map<std::string, std::shared_ptr<const T>>& entities,
    const Tessaly::TopLevelImageExpression& expression, Tessaly::EntityKind kind)
{
    std::map<std::string, double> places;
    std::vector<const T*> all;
    for (const auto& entity : entities) {
        places.emplace(entity.first, double(all.size()));
        all.push_back(entity.second.get());
    }
    std::vector<double> used;
    const Tessaly::ImageExpressionDictionary& dictionary = expression.getDictionary();
    Prim::PrimEnvironmentUtils::checkNumbersAreSequential(
        expression.getDependencies(kind),
        [&](int index) { return dictionary.getNumber(kind, index); });
    Prim::PrimEnvironmentUtils::flattenValueEnvironment(
        used, places, expression.getDependencies(kind),
        [&](int index) { return dictionary.getName(kind, index); });
    std::vector<const T*> result;
    for (double place : used)
        result.push_back(all[size_t(place)]);
    return result;
}

bool CalculationEnvironment::isRegistrator(const VRK::Functor& functor)
{
    return Prim::RegistratorType::anyRegisters<
        Prim::NumberedValueRegistratorType, Prim::NamedValueRegistratorType,
        NumberedMapRegistratorType, NamedMapRegistratorType, NumberedLookupTableRegistratorType,
        NamedLookupTableRegistratorType>(functor);
}

} // namespace Maps
