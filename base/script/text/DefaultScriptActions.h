#ifndef VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTACTIONS_H
#define VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTACTIONS_H

// Internal to the host library: plugins and applications do not include it.

#include "base/parse/ScannerTypes.h"
#include "base/util/ScriptPosition.h"

#include <cstddef>
#include <string>
#include <vector>

namespace VRK {

class InputPort;
class ScriptBuilder;

// What the text script grammar does as it recognises each piece: it turns matched
// text into calls of a ScriptBuilder and reads typed-in values in place.
class DefaultScriptActions {
public:
    explicit DefaultScriptActions(ScriptBuilder& builder);

    void propertyName(const ScriptIterator& first, const ScriptIterator& last);
    // The quoted text of the property value, quotes included.
    void propertyValue(const ScriptIterator& first, const ScriptIterator& last);
    // A property list closed by ";": the properties belong to the script.
    void scriptProperties(const ScriptIterator& first, const ScriptIterator& last);

    // A word that may turn out to be an alias when ":=" follows.
    void word(const ScriptIterator& first, const ScriptIterator& last);
    void aliasDefined();
    // The registered name that the functor-name parser matched.
    void functorName(const std::string& registeredName);
    // The whole word matched as a functor name: the functor is created here.
    void beginFunctor(const ScriptIterator& first, const ScriptIterator& last);
    [[noreturn]] void unknownFunctor(const ScriptIterator& first, const ScriptIterator& last);
    [[noreturn]] void unterminatedFunctor(const ScriptIterator& first, const ScriptIterator& last);

    void beginContents(const ScriptIterator& first, const ScriptIterator& last);
    // A "}": it closes the innermost open contents; with none open it stands where a
    // functor name should.
    void endContents(const ScriptIterator& first, const ScriptIterator& last);
    // Where the statements end: every contents opened must have been closed.
    void endOfStatements(const ScriptIterator& first, const ScriptIterator& last);

    // An input name and its "=": the input that the following value or reference sets.
    void port(const ScriptIterator& first, const ScriptIterator& last);
    // "alias.port"
    void reference(const ScriptIterator& first, const ScriptIterator& last);
    // Reads the value of the current port where the scanner stands; returns the length
    // read.
    std::ptrdiff_t value(const ScriptScanner& scan);

    // Where an iterator stands, in the terms of diagnostics.
    static ScriptPosition positionOf(const ScriptIterator& where);

private:
    [[noreturn]] void raise(const ScriptIterator& where, const std::string& message) const;
    void checkValueEnd(const ScriptScanner& scan) const;

    struct OpenContents {
        std::string functor;
        ScriptPosition position;
    };

    ScriptBuilder& builder_;
    std::string propertyName_;
    std::string word_;
    ScriptPosition wordPosition_;
    std::string alias_;
    ScriptPosition aliasPosition_;
    std::string functorName_;
    InputPort* port_ = nullptr;
    std::vector<OpenContents> open_;
};

} // namespace VRK

#endif
