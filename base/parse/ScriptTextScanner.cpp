#include "base/parse/ScriptTextScanner.h"

namespace VRK {

namespace {
ScriptIterator startOf(const std::vector<char>& characters, const std::string& filename)
{
    ScriptIterator first(characters.begin(), characters.end(),
                         ScriptFilePosition(filename.c_str()));
    first.set_tabchars(1);
    return first;
}
} // namespace

ScriptTextScanner::ScriptTextScanner(const std::string& text, const std::string& filename)
    : filename_(filename), characters_(text.begin(), text.end()),
      first_(startOf(characters_, filename_)), last_(),
      skipper_(),
      scanner_(first_, last_,
               ScriptScanner::policies_t(
                   boost::spirit::classic::skip_parser_iteration_policy<DefaultSkipGrammar>(
                       skipper_)))
{
}

} // namespace VRK
