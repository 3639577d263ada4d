#ifndef VRK_BASE_PARSE_SCRIPTTEXTSCANNER_H
#define VRK_BASE_PARSE_SCRIPTTEXTSCANNER_H

#include "base/parse/DefaultSkipGrammar.h"
#include "base/parse/ScannerTypes.h"

#include <string>
#include <vector>

namespace VRK {

// The script scanner over a whole text read from a file: positions carry the file
// name, lines and columns from 1, and a tab counts as one column, so that a caret
// line that repeats the tabs of the source line stands under the right character.
class ScriptTextScanner {
public:
    ScriptTextScanner(const std::string& text, const std::string& filename);
    ScriptTextScanner(const ScriptTextScanner&) = delete;
    ScriptTextScanner& operator=(const ScriptTextScanner&) = delete;

    const ScriptScanner& getScanner() const { return scanner_; }

private:
    std::vector<char> characters_;
    ScriptTextLines lines_;
    ScriptIterator first_;
    ScriptIterator last_;
    DefaultSkipGrammar skipper_;
    ScriptScanner scanner_;
};

} // namespace VRK

#endif
