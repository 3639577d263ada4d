#ifndef VRK_PLUGINS_MAPS_CALCULATIONENVIRONMENT_H
#define VRK_PLUGINS_MAPS_CALCULATIONENVIRONMENT_H

#include "base/graph/ContainerFunctor.h"
#include "tessaly/images/ImageCalculator.h"
#include "tessaly/images/LookupTable.h"
#include "tessaly/images/TopLevelImageExpression.h"
#include "tessaly/raster/StripCalculator.h"

#include <map>
#include <memory>
#include <string>

namespace Maps {

// The maps, tables and values that a calculating functor gives its formula: those that
// the registrators directly inside it name (maps "i1" or by name, tables "t1" or by
// name, values "v1" or by name) and those of its own ports. A name given twice fails
// with the registrators' duplicate message.
class CalculationEnvironment {
public:
    explicit CalculationEnvironment(const VRK::ContainerFunctor& container);
    // Empty, for a calculation that a program gives its maps, tables and values itself.
    CalculationEnvironment();

    void addValue(const std::string& name, double value);

    void addMap(const std::string& name, const std::shared_ptr<const Tessaly::RasterSource>& map);
    void addTable(const std::string& name,
                  const std::shared_ptr<const Tessaly::LookupTable>& table);

    // What `expression` reads, in the order of its dictionary. Fails when it names
    // anything not registered, or numbers of a kind with a gap. The lists point into
    // this environment.
    Tessaly::SourceCalculationInputs
    flatten(const Tessaly::TopLevelImageExpression& expression) const;

    // Whether the container may hold `functor`: a registrator of values, maps or tables.
    static bool isRegistrator(const VRK::Functor& functor);

private:
    template <class T>
    static std::vector<const T*>
    flattenEntities(const std::map<std::string, std::shared_ptr<const T>>& entities,
                    const Tessaly::TopLevelImageExpression& expression, Tessaly::EntityKind kind);
    template <class T>
    static void add(std::map<std::string, T>& entities, const std::string& name, const T& entity);

    std::map<std::string, double> values_;
    std::map<std::string, std::shared_ptr<const Tessaly::RasterSource>> maps_;
    std::map<std::string, std::shared_ptr<const Tessaly::LookupTable>> tables_;
};

} // namespace Maps

#endif
