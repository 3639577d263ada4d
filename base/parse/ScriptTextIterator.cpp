#include "base/parse/ScriptTextIterator.h"

#include <algorithm>

namespace VRK {

ScriptTextLines::ScriptTextLines(const char* begin, const char* end, const char* file)
    : end_(end), file_(file), lineStarts_{begin}
{
    for (const char* at = begin; at != end; ++at)
        if (*at == '\n' || (*at == '\r' && (at + 1 == end || at[1] != '\n')))
            lineStarts_.push_back(at + 1);
}

// The "\n" of a "\r\n" stands in the column of its "\r", as the pair is one end of line.
ScriptFilePosition ScriptTextLines::positionOf(const char* at) const
{
    const auto next = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), at);
    const char* start = *(next - 1);
    int column = int(at - start) + 1;
    if (at != start && *at == '\n' && at[-1] == '\r')
        --column;
    return ScriptFilePosition(ScriptFileName(file_), int(next - lineStarts_.begin()), column);
}

} // namespace VRK
