#include "base/util/RealText.h"

#include "base/util/PrintableText.h"

#include <boost/algorithm/string/predicate.hpp>

#include <cassert>
#include <cctype>
#include <charconv>
#include <limits>

namespace VRK {

// The sign is taken here: the conversion accepts "-" but not "+".
RealText::RealText(const std::string& text) : text_(text), problem_(" is not a number.")
{
    const bool negative = !text.empty() && text[0] == '-';
    const size_t sign = !text.empty() && (negative || text[0] == '+') ? 1 : 0;
    const std::string word = text.substr(sign, 4);
    if (text.size() == sign + 3 && boost::algorithm::iequals(word, "inf")) {
        value_ = negative ? -std::numeric_limits<double>::infinity()
                          : std::numeric_limits<double>::infinity();
    } else if (text.size() == sign + 3 && boost::algorithm::iequals(word, "nan")) {
        value_ = std::numeric_limits<double>::quiet_NaN();
    } else {
        readDigits(text.data() + sign, text.data() + text.size(), negative);
        return;
    }
    beginsAsNumber_ = true;
    problem_.clear();
}

// The conversion would also take "inf", "infinity" and "nan(...)": only a digit or a
// point may begin here.
void RealText::readDigits(const char* begin, const char* end, bool negative)
{
    beginsAsNumber_ =
        begin != end && (std::isdigit(static_cast<unsigned char>(*begin)) || *begin == '.');
    if (!beginsAsNumber_)
        return;
    const std::from_chars_result read =
        std::from_chars(begin, end, value_, std::chars_format::general);
    if (read.ptr != end)
        return;
    if (read.ec == std::errc::result_out_of_range) {
        problem_ = " is beyond the range of double precision reals.";
        return;
    }
    if (read.ec != std::errc())
        return;
    if (negative)
        value_ = -value_;
    problem_.clear();
}

double RealText::getValue() const
{
    assert(isNumber() && "isNumber()");
    return value_;
}

std::string RealText::describeProblem(const std::string& what) const
{
    if (problem_.empty())
        return std::string();
    return "The " + what + " \"" + PrintableText::cut(text_) + "\"" + problem_;
}

} // namespace VRK
