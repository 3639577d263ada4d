#ifndef PRIM_PRIMREADERUTILS_H
#define PRIM_PRIMREADERUTILS_H

#include <boost/spirit/include/classic_actor.hpp>
#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace Prim {

// Grammar pieces that several value readers share.
class PrimReaderUtils {
public:
    // A double quote, any characters other than a double quote, a double quote, read as
    // one lexeme; the characters between the quotes are assigned to `text`. Nothing is
    // an escape here: a backslash is an ordinary character.
    static auto quotedText(std::string& text)
    {
        using namespace boost::spirit::classic;
        return lexeme_d[ch_p('"') >> (*(anychar_p - '"'))[assign_a(text)] >> '"'];
    }
};

} // namespace Prim

#endif
