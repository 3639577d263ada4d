#ifndef VRK_BASE_GRAPH_FUNCTORNAMEUTILS_H
#define VRK_BASE_GRAPH_FUNCTORNAMEUTILS_H

#include <string>
#include <vector>

namespace VRK {

class Functor;

// How every message names functors and lists names, so that a modeller meets one
// spelling whichever part of the host speaks.
class FunctorNameUtils {
public:
    // The alias and the registered name, `"loop" (For)`, or the registered name alone,
    // `"For"`, for a functor the modeller gave no alias.
    static std::string describe(const Functor& functor);
    // The same followed by " at FILE:LINE:COLUMN" where the position is known: for texts
    // that are not themselves located at the functor (traces, lists of functors).
    static std::string describeAt(const Functor& functor);

    // What is said when `container` does not accept `functor`.
    static std::string refusedContentMessage(const Functor& functor, const Functor& container);

    // `"text"`
    static std::string quote(const std::string& text);
    // `a, b and c`: the items as they are.
    static std::string listItems(const std::vector<std::string>& items);
    // `"a", "b" and "c"`
    static std::string listQuoted(const std::vector<std::string>& names);
};

} // namespace VRK

#endif
