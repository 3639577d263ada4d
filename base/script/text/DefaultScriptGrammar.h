#ifndef VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTGRAMMAR_H
#define VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTGRAMMAR_H

// Internal to the host library: plugins and applications do not include it.

#include "base/parse/ScannerTypes.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>

namespace VRK {

class DefaultScriptActions;

// The grammar of text scripts (".vrk"):
//
//   script    = { statement } ;
//   statement = { property } functor | property { property } ";" ;
//   property  = "@" identifier "=" string ;
//   functor   = [ alias ":=" ] functor-name { binding } ( ";" | "{" { statement } "}" ) ;
//   binding   = port-name "=" ( reference | value ) ;
//   reference = alias "." port-name ;
//
// Properties attach to the next functor; a list of them closed by ";" at the top
// level belongs to the script. Functor names are matched as whole words through the
// factory farm's functor-name parser; values are read in place by the readers
// registered for the ports' types. It parses the script scanner only; its definition
// lives in its own translation unit.
class DefaultScriptGrammar : public boost::spirit::classic::grammar<DefaultScriptGrammar> {
public:
    template <class ScannerT>
    struct definition;

    // With `propertiesOnly`, reads the script properties at the head of the text and
    // stops at the first functor.
    DefaultScriptGrammar(DefaultScriptActions& actions, bool propertiesOnly);

    // Reads `text`, the content of `filename`; throws a ParseError at the first mistake.
    void read(const std::string& text, const std::string& filename) const;

    DefaultScriptActions& getActions() const { return actions_; }
    bool isPropertiesOnly() const { return propertiesOnly_; }

private:
    DefaultScriptActions& actions_;
    bool propertiesOnly_;
};

} // namespace VRK

#endif
