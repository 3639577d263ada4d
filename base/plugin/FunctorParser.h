#ifndef VRK_BASE_PLUGIN_FUNCTORPARSER_H
#define VRK_BASE_PLUGIN_FUNCTORPARSER_H

#include <boost/spirit/include/classic_symbols_fwd.hpp>

#include <string>

namespace VRK {

// The symbol table over which script readers recognise registered functor names, each
// mapped to the name it stands for (an alias to its functor's name). Only named here:
// the few places that fill or parse with it include classic_symbols.hpp, so that the
// grammar machinery stays out of every file that merely reaches the factory farm.
using FunctorParser = boost::spirit::classic::symbols<std::string, char>;

} // namespace VRK

#endif
