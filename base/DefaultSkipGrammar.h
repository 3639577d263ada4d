#ifndef VRK_BASE_DEFAULTSKIPGRAMMAR_H
#define VRK_BASE_DEFAULTSKIPGRAMMAR_H

#include <boost/spirit/include/classic_core.hpp>
#include <boost/spirit/include/classic_confix.hpp>

namespace VRK {

// What script text skips between tokens: white space, "//" line comments and
// "/* */" block comments.
struct DefaultSkipGrammar : public boost::spirit::classic::grammar<DefaultSkipGrammar> {
    template <class ScannerT>
    struct definition {
        explicit definition(const DefaultSkipGrammar&)
        {
            using namespace boost::spirit::classic;
            skip = space_p | comment_p("//") | comment_p("/*", "*/");
        }
        boost::spirit::classic::rule<ScannerT> skip;
        const boost::spirit::classic::rule<ScannerT>& start() const { return skip; }
    };
};

} // namespace VRK

#endif
