#include "base/util/PrintableText.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace VRK {

namespace {

const std::string Ellipsis = "...";

// A character as shown: one byte or one UTF-8 sequence of the text, and how many
// columns it takes.
struct Shown {
    size_t begin;
    size_t size;
    std::string text;
    size_t width;
};

bool isContinuation(unsigned char byte)
{
    return byte >= 0x80 && byte <= 0xBF;
}

// The length of the well-formed UTF-8 sequence of a printable character that starts at
// `at`, or 0. Overlong forms, surrogates, code points beyond U+10FFFF and the C1 control
// characters are not printable.
size_t printableSequenceAt(const std::string& text, size_t at)
{
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[at + i]); };
    const unsigned char lead = byte(0);
    size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        low = lead == 0xC2 ? 0xA0 : 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : 0x80;
        high = lead == 0xED ? 0x9F : 0xBF;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;
    }
    if (length == 0 || at + length > text.size() || byte(1) < low || byte(1) > high)
        return 0;
    for (size_t i = 2; i < length; ++i)
        if (!isContinuation(byte(i)))
            return 0;
    return length;
}

Shown shownAt(const std::string& text, size_t at)
{
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte == '\t' || (byte >= 0x20 && byte < 0x7F))
        return {at, 1, std::string(1, text[at]), 1};
    if (const size_t length = printableSequenceAt(text, at))
        return {at, length, text.substr(at, length), 1};
    char escaped[5];
    std::snprintf(escaped, sizeof escaped, "\\x%02x", byte);
    return {at, 1, escaped, 4};
}

// The characters of `text` from `from` to at least `to`.
std::vector<Shown> shownBetween(const std::string& text, size_t from, size_t to)
{
    std::vector<Shown> shown;
    for (size_t at = from; at < to; at += shown.back().size)
        shown.push_back(shownAt(text, at));
    return shown;
}

size_t endOf(const std::vector<Shown>& shown, size_t from)
{
    return shown.empty() ? from : shown.back().begin + shown.back().size;
}

// The characters from `first` to `last` of `shown` that fit in `width` together with
// the character `at`, as many before it as fit in half the width.
struct Window {
    size_t first;
    size_t last;
};

Window windowAround(const std::vector<Shown>& shown, size_t at, size_t width)
{
    Window window{at, std::min(at + 1, shown.size())};
    size_t used = at < shown.size() ? shown[at].width : 0;
    const auto growLeft = [&](size_t room) {
        while (window.first > 0 && used + shown[window.first - 1].width <= room)
            used += shown[--window.first].width;
    };
    growLeft(width / 2);
    while (window.last < shown.size() && used + shown[window.last].width <= width)
        used += shown[window.last++].width;
    growLeft(width);
    return window;
}

} // namespace

std::string PrintableText::escape(const std::string& text)
{
    std::string printable;
    for (const Shown& shown : shownBetween(text, 0, text.size()))
        printable += shown.text;
    return printable;
}

std::string PrintableText::cut(const std::string& text, size_t width)
{
    std::string printable;
    size_t used = 0;
    for (size_t at = 0; at < text.size();) {
        const Shown shown = shownAt(text, at);
        if (used + shown.width > width)
            return printable + Ellipsis;
        printable += shown.text;
        used += shown.width;
        at += shown.size;
    }
    return printable;
}

// Only the bytes near the column can be shown, since a character takes at most four
// bytes and at most four columns: a line of any length costs no more than a short one.
PrintableText::Excerpt PrintableText::around(const std::string& line, size_t column, size_t width)
{
    const size_t at = std::min(column > 0 ? column - 1 : 0, line.size());
    const size_t reach = 4 * width + 4;
    size_t from = at > reach ? at - reach : 0;
    while (from > 0 && from < at && isContinuation(static_cast<unsigned char>(line[from])))
        ++from;
    const std::vector<Shown> shown = shownBetween(line, from, std::min(line.size(), at + reach));
    size_t caret = 0;
    while (caret < shown.size() && shown[caret].begin + shown[caret].size <= at)
        ++caret;
    const Window window = windowAround(shown, caret, width);

    Excerpt excerpt;
    const size_t firstByte = window.first < shown.size() ? shown[window.first].begin : from;
    if (firstByte > 0) {
        excerpt.text = Ellipsis;
        excerpt.caretIndent = std::string(Ellipsis.size(), ' ');
    }
    for (size_t i = window.first; i < window.last; ++i) {
        excerpt.text += shown[i].text;
        if (i < caret)
            excerpt.caretIndent += shown[i].text == "\t" ? "\t" : std::string(shown[i].width, ' ');
    }
    const size_t lastByte = window.last < shown.size() ? shown[window.last].begin
                                                      : endOf(shown, from);
    if (lastByte < line.size())
        excerpt.text += Ellipsis;
    return excerpt;
}

} // namespace VRK
