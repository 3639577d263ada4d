#include "base/graph/FunctorNameUtils.h"

#include "base/graph/Functor.h"

#include <sstream>

namespace VRK {

std::string FunctorNameUtils::describe(const Functor& functor)
{
    if (functor.getAlias().empty())
        return quote(functor.getName());
    return quote(functor.getAlias()) + " (" + functor.getName() + ")";
}

std::string FunctorNameUtils::describeAt(const Functor& functor)
{
    if (!functor.getPosition().isKnown())
        return describe(functor);
    std::ostringstream text;
    text << describe(functor) << " at " << functor.getPosition();
    return text.str();
}

std::string FunctorNameUtils::refusedContentMessage(const Functor& functor,
                                                    const Functor& container)
{
    return "The functor " + quote(functor.getName()) + " cannot be placed inside "
           + describe(container) + ".";
}

std::string FunctorNameUtils::quote(const std::string& text) { return "\"" + text + "\""; }

std::string FunctorNameUtils::listItems(const std::vector<std::string>& items)
{
    std::string list;
    for (size_t i = 0; i < items.size(); ++i) {
        if (i > 0)
            list += i + 1 == items.size() ? " and " : ", ";
        list += items[i];
    }
    return list;
}

std::string FunctorNameUtils::listQuoted(const std::vector<std::string>& names)
{
    std::vector<std::string> quoted;
    quoted.reserve(names.size());
    for (const auto& name : names)
        quoted.push_back(quote(name));
    return listItems(quoted);
}

} // namespace VRK
