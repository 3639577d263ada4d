#ifndef VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTWRITER_H
#define VRK_BASE_SCRIPT_TEXT_DEFAULTSCRIPTWRITER_H

#include "base/script/ScriptWriter.h"
#include "base/script/ScriptWritingPlan.h"

#include <cstddef>
#include <ostream>
#include <set>
#include <string>

namespace VRK {

class Functor;

// Writes text scripts (".vrk"): one functor a statement, contents indented inside
// braces, bindings and values in port order, values through the writers registered
// for their types. What it writes reads back to a script that it writes identically.
class DefaultScriptWriter : public ScriptWriter {
public:
    static const std::set<std::string> FileExtensions;

    // indentWidth:        spaces per level of nesting.
    // writeProperties:    write the properties of functors (their comments) and of the
    //                     script.
    // writeUnsetValues:   also write the values of typed-in inputs that the modeller did
    //                     not set (their defaults), which then count as set.
    // writeAllAliases:    keep every alias, not only those that a binding refers to: a
    //                     parameter file may name a functor by any alias of the script.
    // writeHostBindings:  also spell out the bindings the host makes by itself (work
    //                     directories).
    // separateTopLevel:   a blank line between the statements of the top level.
    explicit DefaultScriptWriter(int indentWidth = 4, bool writeProperties = true,
                                 bool writeUnsetValues = false, bool writeAllAliases = true,
                                 bool writeHostBindings = false, bool separateTopLevel = false);
    ~DefaultScriptWriter() override;

protected:
    // Throws when a value has no registered writer, a property name or an alias is no
    // identifier, two functors share an alias, or a binding leads out of the script.
    void checkCompatibilityImpl(Script* script, const std::string& filename) override;
    void writeImpl(Script* script, std::ostream& out, const std::string& filename) override;

private:
    void writeScriptProperties(const Script& script, std::ostream& out) const;
    void writeFunctor(const Functor& functor, const ScriptWritingPlan& plan, size_t depth,
                      std::ostream& out) const;
    // A value over several lines lines up with the functor at `depth`.
    static void writeInputs(const Functor& functor, const ScriptWritingPlan& plan, size_t depth,
                            std::ostream& out);
    std::ostream& indent(std::ostream& out, size_t depth) const;

    int indentWidth_;
    bool writeProperties_;
    bool separateTopLevel_;
    ScriptWritingPlan::Options planOptions_;
};

} // namespace VRK

#endif
