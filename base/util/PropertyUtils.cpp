#include "base/util/PropertyUtils.h"

#include "base/util/Propertiable.h"

#include <utility>

namespace VRK {

bool PropertyUtils::findPropertyByAlias(std::string& name, const std::string& alias)
{
    static const std::pair<const char*, const char*> aliases[] = {
        {"note", FUNCTOR_COMMENT_PROPERTY_NAME},
        {"remark", FUNCTOR_COMMENT_PROPERTY_NAME},
    };
    for (const auto& [known, property] : aliases)
        if (alias == known) {
            name = property;
            return true;
        }
    return false;
}

} // namespace VRK
