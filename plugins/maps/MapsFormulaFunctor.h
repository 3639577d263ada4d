#ifndef VRK_PLUGINS_MAPS_MAPSFORMULAFUNCTOR_H
#define VRK_PLUGINS_MAPS_MAPSFORMULAFUNCTOR_H

#include "plugins/prim/formula/FormulaFunctor.h"

namespace Maps {

// A formula functor of this plugin: it holds the registrators of maps, tables and values
// that its calculation environment reads, and nothing else.
class MapsFormulaFunctor : public Prim::FormulaFunctor {
public:
    ~MapsFormulaFunctor() override;

    bool isCompatible(VRK::Functor* functor) const override;

protected:
    using FormulaFunctor::FormulaFunctor;
};

} // namespace Maps

#endif
