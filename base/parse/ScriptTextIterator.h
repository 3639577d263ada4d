#ifndef VRK_BASE_PARSE_SCRIPTTEXTITERATOR_H
#define VRK_BASE_PARSE_SCRIPTTEXTITERATOR_H

#include "base/util/ScriptFileName.h"

#include <boost/spirit/include/classic_position_iterator.hpp>

#include <cstddef>
#include <iterator>
#include <vector>

namespace VRK {

using ScriptFilePosition = boost::spirit::classic::file_position_base<ScriptFileName>;

// Where the lines of a script's text start, so that a place in it can be told as a
// line and a column when asked: lines and columns from 1, a tab one column, and "\n",
// "\r\n" and a lone "\r" each end a line.
class ScriptTextLines {
public:
    ScriptTextLines(const char* begin, const char* end, const ScriptFileName& file);

    ScriptFilePosition positionOf(const char* at) const;
    const char* end() const { return end_; }

private:
    std::vector<const char*>::const_iterator lineAfter(const char* at) const;

    const char* end_;
    ScriptFileName file_;
    std::vector<const char*> lineStarts_;
    // Where the last place asked for lay; a text is read by one thread.
    mutable size_t lastLine_ = 0;
};

// The iterator that the script grammar reads with. Parsing copies and steps iterators
// at every character; this one is a bare pointer for both, and works out its position
// only for the few places that ask (functors, values, errors).
class ScriptTextIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    ScriptTextIterator() = default;
    ScriptTextIterator(const char* at, const ScriptTextLines& lines) : at_(at), lines_(&lines) {}

    reference operator*() const { return *at_; }
    ScriptTextIterator& operator++()
    {
        ++at_;
        return *this;
    }
    ScriptTextIterator operator++(int)
    {
        ScriptTextIterator before = *this;
        ++at_;
        return before;
    }
    bool operator==(const ScriptTextIterator& other) const { return at_ == other.at_; }
    bool operator!=(const ScriptTextIterator& other) const { return at_ != other.at_; }

    ScriptFilePosition get_position() const { return lines_->positionOf(at_); }
    const char* base() const { return at_; }
    bool atEnd() const { return at_ == lines_->end(); }

private:
    const char* at_ = nullptr;
    const ScriptTextLines* lines_ = nullptr;
};

} // namespace VRK

#endif
