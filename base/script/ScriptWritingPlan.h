#ifndef VRK_BASE_SCRIPT_SCRIPTWRITINGPLAN_H
#define VRK_BASE_SCRIPT_SCRIPTWRITINGPLAN_H

#include <cstddef>
#include <functional>
#include <map>
#include <string>

namespace VRK {

class Functor;
class FunctorContainer;
class InputPort;
class Properties;
class Script;

// What a script writer of any format puts down, so that every format says the same:
// which inputs are written (bindings, and values the modeller set), the alias each
// functor appears under, and the script text of typed-in values. Functors keep the
// alias they were read with where it is written; a referenced functor without one gets
// its lower-cased name and a number that no other alias uses.
class ScriptWritingPlan {
public:
    struct Options {
        // Also the values of typed-in inputs that the modeller did not set (defaults).
        bool writeUnsetValues = false;
        // Every alias, not only those that a binding refers to: parameters name
        // functors by their aliases, referenced or not.
        bool writeAllAliases = true;
        // Also the bindings the host makes by itself (work directories).
        bool writeHostBindings = false;
        // Property names must be identifiers, for a format that spells them bare.
        bool identifierPropertyNames = false;
    };

    ScriptWritingPlan(const Script& script, const Options& options);

    // Throws a FileException naming `filename` when what would be written could not be
    // read back: an alias that is no identifier or names two functors, a value without
    // a registered writer, a binding that leads out of the script, and where the options
    // ask for it a property name that is no identifier.
    void check(const std::string& filename) const;

    bool isWritten(const InputPort& port) const;
    bool isWrittenBinding(const InputPort& port) const;
    // The alias `functor` is written with; empty when it is written without one.
    std::string getAlias(const Functor& functor) const;
    // "alias.port" of a written binding.
    std::string getReference(const InputPort& port) const;
    // A typed-in value as the writer of its type prints it. A number is written with the
    // fewest digits that still read back to the same double (0.1 rather than
    // 0.10000000000000001, all seventeen where it takes them), without an exponent
    // where seventeen digits allow it (100 rather than 1e+02). A value written over
    // several lines (a formula) indents them by `indent` levels.
    static std::string getValueText(const InputPort& port, int indent = 0);
    // The levels of indentation of a line at nesting `depth`: they stop growing at
    // MaxIndentLevels, so that deep nesting does not make the text grow with the square
    // of its depth.
    static size_t indentLevels(size_t depth)
    {
        return depth < MaxIndentLevels ? depth : MaxIndentLevels;
    }
    static const size_t MaxIndentLevels = 16;

private:
    void assignAliases();
    void checkPropertyNames(const Properties& properties,
                            const std::function<void(const std::string&)>& refuse) const;

    const Script& script_;
    Options options_;
    std::map<const Functor*, std::string> aliases_;
};

} // namespace VRK

#endif
