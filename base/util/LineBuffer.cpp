#include "base/util/LineBuffer.h"

namespace VRK {

// Every script read keeps its source for diagnostics, which quote a line now and
// then: the text is kept whole with where each line starts, and a line is cut out
// only when asked for.
LineBuffer::LineBuffer(const std::string& text) : text_(text), starts_{0}
{
    for (size_t end = text_.find('\n'); end != std::string::npos;
         end = text_.find('\n', end + 1))
        starts_.push_back(end + 1);
}

std::string LineBuffer::getLine(size_t line) const
{
    if (line < 1 || line > starts_.size())
        return std::string();
    const size_t start = starts_[line - 1];
    const size_t end = line < starts_.size() ? starts_[line] - 1 : text_.size();
    std::string text = text_.substr(start, end - start);
    if (!text.empty() && text.back() == '\r')
        text.pop_back();
    return text;
}

} // namespace VRK
