#include "base/parse/ScriptTextIterator.h"

#include <algorithm>
#include <cstring>

namespace VRK {

// Most texts hold no "\r": their lines are found a whole line at a time.
ScriptTextLines::ScriptTextLines(const char* begin, const char* end, const ScriptFileName& file)
    : end_(end), file_(file), lineStarts_{begin}
{
    // An empty text may have no storage at all, which memchr must not be given.
    if (begin == end)
        return;
    if (!std::memchr(begin, '\r', size_t(end - begin))) {
        for (const char* at = begin;
             (at = static_cast<const char*>(std::memchr(at, '\n', size_t(end - at))));)
            lineStarts_.push_back(++at);
        return;
    }
    for (const char* at = begin; at != end; ++at)
        if (*at == '\n' || (*at == '\r' && (at + 1 == end || at[1] != '\n')))
            lineStarts_.push_back(at + 1);
}

// Places are asked for in reading order, mostly on the line asked last or the next.
std::vector<const char*>::const_iterator ScriptTextLines::lineAfter(const char* at) const
{
    const size_t count = lineStarts_.size();
    for (size_t line = lastLine_; line < count && line <= lastLine_ + 1; ++line)
        if (lineStarts_[line] <= at && (line + 1 == count || at < lineStarts_[line + 1])) {
            lastLine_ = line;
            return lineStarts_.begin() + std::ptrdiff_t(line + 1);
        }
    const auto next = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), at);
    lastLine_ = size_t(next - 1 - lineStarts_.begin());
    return next;
}

// The "\n" of a "\r\n" stands in the column of its "\r", as the pair is one end of line.
ScriptFilePosition ScriptTextLines::positionOf(const char* at) const
{
    const auto next = lineAfter(at);
    const char* start = *(next - 1);
    int column = int(at - start) + 1;
    if (at != end_ && at != start && *at == '\n' && at[-1] == '\r')
        --column;
    return ScriptFilePosition(file_, int(next - lineStarts_.begin()), column);
}

} // namespace VRK
