#ifndef VRK_BASE_PARSE_DEFAULTSKIPGRAMMAR_H
#define VRK_BASE_PARSE_DEFAULTSKIPGRAMMAR_H

#include "base/util/ScriptCharClass.h"

#include <boost/spirit/include/classic_core.hpp>

#include <cstddef>

namespace VRK {

// What script text skips between tokens: white space, "//" line comments (up to and
// with the line's end) and "/* */" block comments; a block comment never closed is not
// skipped. The scanner skips before every token, so one call passes over the whole run
// of blanks and comments in a plain loop, rather than a grammar's rule per character.
struct DefaultSkipGrammar : public boost::spirit::classic::parser<DefaultSkipGrammar> {
    using self_t = DefaultSkipGrammar;

    template <class ScannerT>
    struct result {
        using type = typename boost::spirit::classic::match_result<
            ScannerT, boost::spirit::classic::nil_t>::type;
    };

    template <class ScannerT>
    typename boost::spirit::classic::parser_result<self_t, ScannerT>::type
    parse(const ScannerT& scan) const
    {
        const typename ScannerT::iterator_t start = scan.first;
        std::ptrdiff_t length = 0;
        while (!scan.at_end()) {
            std::ptrdiff_t step = 0;
            if (ScriptCharClass::isSpace(*scan))
                step = 1;
            else if (*scan == '/')
                step = commentLength(scan.first, scan.last);
            if (step == 0)
                break;
            for (std::ptrdiff_t i = 0; i < step; ++i)
                ++scan.first;
            length += step;
        }
        if (length == 0)
            return scan.no_match();
        return scan.create_match(length, boost::spirit::classic::nil_t(), start, scan.first);
    }

private:
    // The length of the comment that starts at `at` ("/" there), 0 for none.
    template <class IteratorT>
    static std::ptrdiff_t commentLength(IteratorT at, const IteratorT& end)
    {
        ++at;
        if (at == end || (*at != '/' && *at != '*'))
            return 0;
        const bool line = *at == '/';
        ++at;
        std::ptrdiff_t length = 2;
        for (; at != end; ++at, ++length) {
            if (line && (*at == '\n' || *at == '\r'))
                return length + lineEndLength(at, end);
            if (!line && *at == '*' && closesBlock(at, end))
                return length + 2;
        }
        return line ? length : 0;
    }
    // "\r\n" is one line end.
    template <class IteratorT>
    static std::ptrdiff_t lineEndLength(IteratorT at, const IteratorT& end)
    {
        if (*at != '\r')
            return 1;
        ++at;
        return at != end && *at == '\n' ? 2 : 1;
    }
    template <class IteratorT>
    static bool closesBlock(IteratorT at, const IteratorT& end)
    {
        ++at;
        return at != end && *at == '/';
    }
};

} // namespace VRK

#endif
