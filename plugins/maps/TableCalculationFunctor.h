#ifndef VRK_PLUGINS_MAPS_TABLECALCULATIONFUNCTOR_H
#define VRK_PLUGINS_MAPS_TABLECALCULATIONFUNCTOR_H

#include "plugins/maps/MapsFormulaFunctor.h"
#include "tessaly/images/LookupTable.h"

#include <memory>
#include <string>

namespace Maps {

// Evaluates "expression" once for each key of a table, with `line` standing for the key,
// over the tables and values registered inside it, and publishes on "result" the table of
// the same keys with the formula's values (null where the formula gives null). The keys
// are those of its input "table" when it has one (the formula names it %table), else of
// the first table that the formula names.
class TableCalculationFunctor : public MapsFormulaFunctor {
public:
    ~TableCalculationFunctor() override;

protected:
    // `namedTable`: the functor has the input "table".
    TableCalculationFunctor(const std::string& name, const std::string& description,
                            bool namedTable);

private:
    void calculate() override;

    bool namedTable_;
};

} // namespace Maps

#endif
