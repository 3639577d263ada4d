#include "base/script/xml/XMLValueText.h"

#include <algorithm>
#include <cstdlib>

namespace VRK {

namespace {

// How many bytes the UTF-8 form of a code point takes.
size_t utf8Length(unsigned long codePoint)
{
    return codePoint < 0x80 ? 1 : codePoint < 0x800 ? 2 : codePoint < 0x10000 ? 3 : 4;
}

} // namespace

XMLValueText::XMLValueText(const pugi::xml_node& element, const std::string& source)
    : source_(source)
{
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() != pugi::node_pcdata && child.type() != pugi::node_cdata)
            continue;
        pieces_.push_back(Piece{text_.size(), static_cast<size_t>(child.offset_debug()),
                                child.type() == pugi::node_pcdata});
        text_ += child.value();
    }
}

size_t XMLValueText::getSourceOffset(size_t offset) const
{
    auto piece = std::upper_bound(pieces_.begin(), pieces_.end(), offset,
                                  [](size_t at, const Piece& p) { return at < p.textStart; });
    if (piece == pieces_.begin())
        return 0;
    --piece;
    size_t remaining = offset - piece->textStart;
    size_t at = piece->sourceStart;
    while (remaining > 0 && at < source_.size()) {
        size_t next = at + 1;
        size_t length = 1;
        if (piece->decodesEntities && source_[at] == '&')
            length = entityLength(at, next);
        else if (source_[at] == '\r' && next < source_.size() && source_[next] == '\n')
            ++next;
        if (length > remaining)
            break;
        remaining -= length;
        at = next;
    }
    return at;
}

// The length of the text that the entity at `at` stands for; `end` is set behind it.
size_t XMLValueText::entityLength(size_t at, size_t& end) const
{
    const size_t semicolon = source_.find(';', at);
    if (semicolon == std::string::npos)
        return 1;
    end = semicolon + 1;
    if (at + 2 >= semicolon || source_[at + 1] != '#')
        return 1;
    const bool hex = source_[at + 2] == 'x';
    const unsigned long codePoint =
        std::strtoul(source_.c_str() + at + (hex ? 3 : 2), nullptr, hex ? 16 : 10);
    return utf8Length(codePoint);
}

} // namespace VRK
