#ifndef VRK_BASE_FUNCTORUPDATES_H
#define VRK_BASE_FUNCTORUPDATES_H

#include <memory>

namespace VRK {

class Functor;

// Gives a functor the alias made of its name with a lower-case first letter and
// `number` ("For" and 3 give "for3"), so that a writer can refer to a functor the
// modeller never named.
void updateFunctorAlias(const std::shared_ptr<Functor>& functor, int number);

// Makes every port and editor of the functor (internal ports too) belong to it again,
// as after the functor was copied or moved.
void updateFunctorPortOwner(const std::shared_ptr<Functor>& functor);

} // namespace VRK

#endif
