#include "plugins/maps/AsciiGridCellChecker.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/error/UnableToAccessFileException.h"
#include "base/task/Task.h"
#include "base/util/RealText.h"

#include <boost/algorithm/string/predicate.hpp>

#include <fstream>
#include <string>
#include <vector>

namespace Maps {

namespace {

// Lines checked between two looks at cancellation.
constexpr int SliceLines = 256;

const char* const HeaderKeys[] = {"ncols",     "nrows",     "xllcorner", "yllcorner", "xllcenter",
                                  "yllcenter", "cellsize",  "dx",        "dy",        "nodata_value"};

bool isHeaderKey(const std::string& word)
{
    for (const char* key : HeaderKeys)
        if (boost::algorithm::iequals(word, key))
            return true;
    return false;
}

// The words of a line, split at white space; a grid of millions of cells is split
// here faster than a stream would.
std::vector<std::string> wordsOf(const std::string& line)
{
    static const char* const Space = " \t\r\v\f";
    std::vector<std::string> words;
    for (size_t start = line.find_first_not_of(Space); start != std::string::npos;) {
        const size_t end = line.find_first_of(Space, start);
        words.push_back(line.substr(start, end - start));
        start = end == std::string::npos ? end : line.find_first_not_of(Space, end);
    }
    return words;
}

class GridText {
public:
    explicit GridText(const boost::filesystem::path& file) : file_(file) {}

    // Header lines come first; the first line that starts with no header key is cells.
    void checkLine(int number, const std::string& line)
    {
        const std::vector<std::string> words = wordsOf(line);
        if (words.empty())
            return;
        if (!inCells_ && isHeaderKey(words[0])) {
            checkHeader(number, words[0], words.size() > 1 ? words[1] : std::string());
            return;
        }
        inCells_ = true;
        for (const std::string& cell : words)
            checkCell(number, cell);
    }

private:
    void checkHeader(int number, const std::string& key, const std::string& value) const
    {
        const VRK::RealText text(value);
        if (!text.isNumber())
            refuse(number, text.describeProblem("value of " + key));
    }

    void checkCell(int number, const std::string& cell) const
    {
        const VRK::RealText text(cell);
        if (!text.isNumber())
            refuse(number, text.describeProblem("cell"));
    }

    [[noreturn]] void refuse(int line, const std::string& problem) const
    {
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
            file_.string() + ":" + std::to_string(line) + ": " + problem);
    }

    boost::filesystem::path file_;
    bool inCells_ = false;
};

} // namespace

void AsciiGridCellChecker::check(const boost::filesystem::path& file)
{
    std::ifstream in(file.string(), std::ios::binary);
    if (!in)
        VRK::ExceptionUtils::raise<VRK::UnableToAccessFileException>(
            "The map file \"" + file.string() + "\" can not be read.");
    const VRK::Task* task = VRK::Task::getCurrentTask();
    GridText grid(file);
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (task && number % SliceLines == 0)
            task->checkCancellation();
        grid.checkLine(number, line);
    }
}

} // namespace Maps
