#include "base/script/ScriptTextInput.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/FileException.h"

#include <ios>
#include <new>

namespace VRK {

namespace {

const std::string ByteOrderMark = "\xEF\xBB\xBF";

// How much is left in `buffer`, where it can tell; 0 otherwise (a pipe, or a folder,
// which seeks to no true end).
size_t remainingSize(std::streambuf& buffer, size_t limit)
{
    const std::streamoff here = buffer.pubseekoff(0, std::ios::cur, std::ios::in);
    const std::streamoff end = buffer.pubseekoff(0, std::ios::end, std::ios::in);
    if (here < 0 || end < here || buffer.pubseekpos(here, std::ios::in) != here
        || static_cast<unsigned long long>(end - here) >= limit)
        return 0;
    return static_cast<size_t>(end - here);
}

// Taken in blocks rather than character by character, into room made beforehand where
// the size is known; like a stream buffer iterator it leaves the stream's state alone.
std::string remainingText(std::streambuf& buffer)
{
    std::string text;
    text.reserve(remainingSize(buffer, text.max_size()));
    char block[16384];
    for (std::streamsize count; (count = buffer.sgetn(block, sizeof block)) > 0;)
        text.append(block, static_cast<size_t>(count));
    return text;
}

} // namespace

std::string ScriptTextInput::readAll(std::istream& in, const std::string& description)
{
    std::string text;
    std::streambuf* buffer = in.rdbuf();
    std::string reason;
    try {
        if (buffer)
            text = remainingText(*buffer);
    } catch (const std::ios_base::failure& error) {
        reason = error.code().message();
    } catch (const std::bad_alloc&) {
        reason = "it does not fit in memory";
    }
    if (reason.empty() && in.bad())
        reason = "the stream failed";
    if (!reason.empty())
        ExceptionUtils::raise<FileException>(description + " cannot be read: " + reason + ".");
    dropByteOrderMark(text);
    return text;
}

void ScriptTextInput::dropByteOrderMark(std::string& text)
{
    if (text.compare(0, ByteOrderMark.size(), ByteOrderMark) == 0)
        text.erase(0, ByteOrderMark.size());
}

} // namespace VRK
