#include "plugins/prim/environment/SelectStringFunctor.h"

namespace Prim {

SelectString::SelectString()
    : SelectorFunctor("SelectString", "Pick up a string from a series of strings.", "valueNumber",
                      "value", "string", "String.")
{
}

SelectString::~SelectString() = default;

} // namespace Prim
