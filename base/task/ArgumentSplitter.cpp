#include "base/task/ArgumentSplitter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/RuntimeException.h"

#include <cstring>

namespace VRK {

namespace {

class WordScanner {
public:
    explicit WordScanner(const std::string& text) : text_(text) {}

    std::vector<std::string> words()
    {
        while (at_ < text_.size()) {
            const char c = text_[at_++];
            if (c == ' ' || c == '\t' || c == '\n')
                endWord();
            else if (c == '\'')
                singleQuoted();
            else if (c == '"')
                doubleQuoted();
            else if (c == '\\' && at_ < text_.size())
                append(text_[at_++]);
            else
                append(c);
        }
        endWord();
        return words_;
    }

private:
    void append(char c)
    {
        word_ += c;
        inWord_ = true;
    }
    void endWord()
    {
        if (inWord_)
            words_.push_back(word_);
        word_.clear();
        inWord_ = false;
    }
    void singleQuoted()
    {
        inWord_ = true;
        size_t close = text_.find('\'', at_);
        if (close == std::string::npos)
            unterminated('\'');
        word_ += text_.substr(at_, close - at_);
        at_ = close + 1;
    }
    void doubleQuoted()
    {
        inWord_ = true;
        while (at_ < text_.size() && text_[at_] != '"') {
            char c = text_[at_++];
            if (c == '\\' && at_ < text_.size() && std::strchr("\\\"$`", text_[at_]))
                c = text_[at_++];
            word_ += c;
        }
        if (at_ >= text_.size())
            unterminated('"');
        ++at_;
    }
    [[noreturn]] void unterminated(char quote) const
    {
        ExceptionUtils::raise<RuntimeException>(std::string("The parameters \"") + text_
                                                + "\" have an unterminated " + quote + " quote.");
    }

    const std::string& text_;
    size_t at_ = 0;
    std::string word_;
    bool inWord_ = false;
    std::vector<std::string> words_;
};

} // namespace

std::vector<std::string> ArgumentSplitter::split(const std::string& parameters)
{
    return WordScanner(parameters).words();
}

} // namespace VRK
