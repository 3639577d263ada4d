#ifndef VRK_BASE_GRAPH_FUNCTORUPDATES_H
#define VRK_BASE_GRAPH_FUNCTORUPDATES_H

#include <memory>
#include <string>

namespace VRK {

class Functor;

// The alias made of a functor name with a lower-case first letter and `number`
// ("For" and 3 give "for3"): how a functor the modeller never named is referred to.
std::string makeFunctorAlias(const std::string& name, int number);

// Gives a functor the alias that makeFunctorAlias makes of its name and `number`.
void updateFunctorAlias(const std::shared_ptr<Functor>& functor, int number);

// Makes every port and editor of the functor (internal ports too) belong to it again,
// as after the functor was copied or moved.
void updateFunctorPortOwner(const std::shared_ptr<Functor>& functor);

} // namespace VRK

#endif
