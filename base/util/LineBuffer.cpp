#include "base/util/LineBuffer.h"

namespace VRK {

// Every script read keeps its source for diagnostics, which quote a line now and
// then: the text is kept whole with where each line starts, and a line is cut out
// only when asked for. Lines end as the script readers count them: at "\n", "\r\n" or
// a lone "\r".
LineBuffer::LineBuffer(const std::string& text) : text_(text), starts_{0}
{
    for (size_t end = text_.find_first_of("\r\n"); end != std::string::npos;
         end = text_.find_first_of("\r\n", end + 1)) {
        if (text_[end] == '\r' && end + 1 < text_.size() && text_[end + 1] == '\n')
            ++end;
        starts_.push_back(end + 1);
    }
}

std::string LineBuffer::getLine(size_t line) const
{
    if (line < 1 || line > starts_.size())
        return std::string();
    const size_t start = starts_[line - 1];
    size_t end = line < starts_.size() ? starts_[line] : text_.size();
    if (end > start && text_[end - 1] == '\n')
        --end;
    if (end > start && text_[end - 1] == '\r')
        --end;
    return text_.substr(start, end - start);
}

} // namespace VRK
