#ifndef VRK_BASE_UTIL_LINEBUFFER_H
#define VRK_BASE_UTIL_LINEBUFFER_H

#include <string>
#include <vector>

namespace VRK {

// The lines of a text, to quote a line of a script in a diagnostic.
class LineBuffer {
public:
    LineBuffer() = default;
    explicit LineBuffer(const std::string& text);

    // Line `line`, counted from 1, without its line break; empty when out of range.
    std::string getLine(size_t line) const;
    size_t getLineCount() const { return starts_.size(); }

private:
    std::string text_;
    // Where each line starts in `text_`.
    std::vector<size_t> starts_;
};

} // namespace VRK

#endif
