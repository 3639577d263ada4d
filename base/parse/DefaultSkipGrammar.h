#ifndef VRK_BASE_PARSE_DEFAULTSKIPGRAMMAR_H
#define VRK_BASE_PARSE_DEFAULTSKIPGRAMMAR_H

#include <boost/spirit/include/classic_core.hpp>
#include <boost/spirit/include/classic_confix.hpp>

namespace VRK {

// What script text skips between tokens: white space, "//" line comments and
// "/* */" block comments. The scanner skips before every token, so the expression is
// parsed directly rather than through a grammar's rule, which would look its
// definition up and call through a virtual function at each skip.
struct DefaultSkipGrammar : public boost::spirit::classic::parser<DefaultSkipGrammar> {
    using self_t = DefaultSkipGrammar;

    template <class ScannerT>
    struct result {
        using type = typename boost::spirit::classic::match_result<
            ScannerT, boost::spirit::classic::nil_t>::type;
    };

    // Most calls stand on a token with nothing to skip: only a "/" can open a comment,
    // so the comment parsers are tried on a "/" alone.
    template <class ScannerT>
    typename boost::spirit::classic::parser_result<self_t, ScannerT>::type
    parse(const ScannerT& scan) const
    {
        using namespace boost::spirit::classic;
        if (scan.at_end() || *scan != '/')
            return space_p.parse(scan);
        return (comment_p("//") | comment_p("/*", "*/")).parse(scan);
    }
};

} // namespace VRK

#endif
