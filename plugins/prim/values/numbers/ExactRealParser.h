#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_EXACTREALPARSER_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_EXACTREALPARSER_H

#include <boost/spirit/include/classic_core.hpp>

#include <cassert>
#include <cstdlib>
#include <string>

namespace Prim {
namespace Spirit {

// Matches exactly the text that real_p matches, but converts those characters with
// strtod. real_p builds its value digit by digit in floating point, which is off by
// an ulp for about one double in five, so a real written with 17 significant digits
// would not always read back to itself; strtod rounds correctly. Only the matched
// characters are converted: what is a real stays real_p's to decide, so "inf", "nan"
// and hexadecimal text are no more reals than before.
struct exact_real_parser : public boost::spirit::classic::parser<exact_real_parser> {
    using self_t = exact_real_parser;

    template <class ScannerT>
    struct result {
        using type = typename boost::spirit::classic::match_result<ScannerT, double>::type;
    };

    template <class ScannerT>
    typename boost::spirit::classic::parser_result<self_t, ScannerT>::type
    parse(const ScannerT& scan) const
    {
        scan.at_end(); // lets a skipper pass over what comes before the number
        const typename ScannerT::iterator_t start = scan.first;
        const auto hit = boost::spirit::classic::real_p.parse(scan);
        if (!hit)
            return scan.no_match();
        return scan.create_match(hit.length(), valueOf(std::string(start, scan.first)), start,
                                 scan.first);
    }

private:
    // Out of range, strtod gives an infinity (which the editors refuse) or the nearest
    // subnormal or zero, as the text asks: its errno is of no further use here.
    static double valueOf(const std::string& text)
    {
        char* end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        assert(end == text.c_str() + text.size() && "end == text.c_str() + text.size()");
        return value;
    }
};

inline const exact_real_parser exact_real_p = exact_real_parser();

} // namespace Spirit
} // namespace Prim

#endif
