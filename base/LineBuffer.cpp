#include "base/LineBuffer.h"

namespace VRK {

LineBuffer::LineBuffer(const std::string& text)
{
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines_.push_back(line);
        start = end + 1;
    }
}

std::string LineBuffer::getLine(size_t line) const
{
    return line >= 1 && line <= lines_.size() ? lines_[line - 1] : std::string();
}

} // namespace VRK
