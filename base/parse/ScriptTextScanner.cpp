#include "base/parse/ScriptTextScanner.h"

namespace VRK {

ScriptTextScanner::ScriptTextScanner(const std::string& text, const std::string& filename)
    : characters_(text.begin(), text.end()),
      lines_(characters_.data(), characters_.data() + characters_.size(), ScriptFileName(filename)),
      first_(characters_.data(), lines_), last_(characters_.data() + characters_.size(), lines_),
      skipper_(),
      scanner_(
          first_, last_,
          ScriptScanner::policies_t(
              boost::spirit::classic::skip_parser_iteration_policy<DefaultSkipGrammar>(skipper_)))
{
}

} // namespace VRK
