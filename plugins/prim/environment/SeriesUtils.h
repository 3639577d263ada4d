#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_SERIESUTILS_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_SERIESUTILS_H

#include <map>

namespace Prim {

// What the selectors share: a numbered series may be sparse, and an item stays in force
// from its number until the next numbered item takes over.
class SeriesUtils {
public:
    // The item with the greatest number not above `index`; none when every number is
    // above it or the series is empty.
    template <class ValueT>
    static const ValueT* pick(const std::map<int, ValueT>& series, int index)
    {
        auto after = series.upper_bound(index);
        if (after == series.begin())
            return nullptr;
        return &std::prev(after)->second;
    }
};

} // namespace Prim

#endif
