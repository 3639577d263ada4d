#ifndef VRK_BASE_PARSE_SCANNERTYPES_H
#define VRK_BASE_PARSE_SCANNERTYPES_H

#include "base/parse/DefaultSkipGrammar.h"
#include "base/parse/ScriptTextIterator.h"

#include <boost/spirit/include/classic_core.hpp>

#include <string>
#include <vector>

namespace VRK {

// The two scanners that value readers are instantiated for.

// Plain: a single value in a C string, white space skipped (values in XML scripts,
// on the command line and in parameter files).
using PlainScanner = boost::spirit::classic::phrase_scanner_t;

// Script: text script files, with file positions for diagnostics; skips white space
// and comments. Positions point at the file name the scanner keeps.
using ScriptIterator = ScriptTextIterator;
using ScriptScanner = boost::spirit::classic::scanner<
    ScriptIterator, boost::spirit::classic::scanner_policies<
                        boost::spirit::classic::skip_parser_iteration_policy<DefaultSkipGrammar>>>;

// The names under which readers of each scanner are registered; the script readers
// publish them as their ScannerName.
inline const std::string ScriptScannerName = "DefaultScriptScanner";
inline const std::string PlainScannerName = "XMLScriptScanner";

} // namespace VRK

#endif
