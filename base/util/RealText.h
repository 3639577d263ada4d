#ifndef VRK_BASE_UTIL_REALTEXT_H
#define VRK_BASE_UTIL_REALTEXT_H

#include <string>

namespace VRK {

// A real number as data files write it, read whole: an optional sign, then decimal
// digits with an optional point and an optional exponent, or the word "inf" or "nan"
// (in any case) that writers of doubles print for an infinity or a null. Anything else
// is not a number: surrounding space, text behind the number (even a NUL byte) and
// hexadecimal. A number beyond the range of a double is refused too, rather than read
// as an infinity that the text does not say.
class RealText {
public:
    explicit RealText(const std::string& text);

    bool isNumber() const { return problem_.empty(); }
    // Whether the text begins as a number does, so that a word tells itself from a
    // number that is written wrong.
    bool beginsAsNumber() const { return beginsAsNumber_; }
    // The number; only when isNumber().
    double getValue() const;
    // Why the text is not a number, as a sentence about "the `what` "TEXT"", with the
    // text made printable and cut to a reasonable length; empty for a number.
    std::string describeProblem(const std::string& what) const;

private:
    void readDigits(const char* begin, const char* end, bool negative);

    std::string text_;
    double value_ = 0;
    bool beginsAsNumber_ = false;
    // " is not a number." or the like; empty for a number.
    std::string problem_;
};

} // namespace VRK

#endif
