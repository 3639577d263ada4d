#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_QUOTEDTEXTREADER_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_QUOTEDTEXTREADER_H

#include "plugins/prim/values/RuleReader.h"

#include <functional>
#include <string>

namespace Prim {

// Whether a backslash in a quoted text protects the character after it.
enum class QuotedTextEscapes {
    // A backslash is an ordinary character, such as a path separator.
    none,
    // A backslash protects the character after it, so that a protected quote does
    // not end the text. The text is handed over as written but for backslash-quote,
    // which is turned back into a quote.
    backslash
};

// Reads a text between double quotes, as one lexeme, and hands it to one setter of the
// editor. The readers of the textual types differ only in what they call the text,
// whether a backslash protects the character after it, and their setter.
template <class ScannerT>
class QuotedTextReader : public RuleReader<ScannerT> {
public:
    using Escapes = QuotedTextEscapes;

protected:
    // `item` names the text in the message of a text that does not read
    // ("Expecting " + item + " enclosed by '\"'.").
    QuotedTextReader(VRK::DataEditor* dataEditor, const std::string& item, Escapes escapes,
                     std::function<void(std::string)> set);

private:
    // The text between the quotes, as written.
    std::string text_;
    std::function<void(std::string)> set_;
};

extern template class QuotedTextReader<VRK::ScriptScanner>;
extern template class QuotedTextReader<VRK::PlainScanner>;

} // namespace Prim

#endif
