#ifndef VRK_BASE_SCRIPT_SCRIPTBUILDER_H
#define VRK_BASE_SCRIPT_SCRIPTBUILDER_H

#include "base/data/BaseType.h"
#include "base/data/DataReader.h"
#include "base/error/ExceptionUtils.h"
#include "base/graph/InputPort.h"
#include "base/parse/ParseError.h"
#include "base/parse/ScannerTypes.h"
#include "base/script/ScriptAliasTable.h"
#include "base/script/ScriptValueReaders.h"
#include "base/util/ScriptPosition.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace VRK {

class ContainerFunctor;
class Functor;
class FunctorContainer;
class OutputPort;
class Script;

// Builds a script from what a reader finds, whatever the file format: functors by name
// in nested containers, their aliases, properties, bindings and typed-in values. Every
// mistake is a ParseError at the position the reader gives. References may point
// forward: bindings are resolved by `finish`, once the whole script is known.
class ScriptBuilder {
public:
    explicit ScriptBuilder(Script& script);

    // A property of the functor that the next `beginFunctor` creates; an old name of a
    // property stands for its present one.
    void addProperty(const std::string& name, const std::string& value);
    // Hands the pending properties to the script itself; only at the top level.
    void attachPropertiesToScript(const ScriptPosition& position);

    // Creates the functor registered as `name` (a name or an alias) in the current
    // container and makes it the current functor. `alias` may be empty.
    Functor& beginFunctor(const std::string& name, const std::string& alias,
                          const ScriptPosition& position);
    // The functors that follow, up to `endContents`, go into the current functor.
    void beginContents(const ScriptPosition& position);
    // Back in the enclosing container; the container is the current functor again.
    void endContents();
    Functor& getCurrentFunctor() const;
    // How deep the current container lies: 0 for the script.
    size_t getDepth() const { return frames_.size() - 1; }

    // The input `name` of the current functor (its name, a port alias, or a container's
    // internal input), noted as given by the script at `position`.
    InputPort& takePort(const std::string& name, const ScriptPosition& position);
    // Binds `port` to the output `output` of the functor aliased `alias`.
    void bind(InputPort& port, std::string alias, std::string output,
              const ScriptPosition& position);
    // The reader of `port`'s type, to read a value in place into the port's editor; the
    // port counts as set.
    std::unique_ptr<DataReader<ScriptScanner>> createValueReader(InputPort& port,
                                                                 const ScriptPosition& position);
    // Where a place in the text of a value, counted from line 1, column 1 of that text,
    // stands in the script.
    using ValueLocator = std::function<ScriptPosition(const ScriptPosition& inText)>;
    // Reads `text`, which stands at `position`, as the value of `port` (values of XML
    // scripts, parameter files and the command line). The text is taken as written in
    // the script, so that a place within it lies as far from `position`.
    static void setValueText(InputPort& port, const std::string& text, const ScriptPosition& position);
    // As above, for a text that differs from what the script spells (entities
    // replaced): `locate` finds the places of errors within it.
    static void setValueText(InputPort& port, const std::string& text,
                             const ScriptPosition& position, const ValueLocator& locate);

    // Resolves the bindings and binds work directories; throws at the first reference
    // that does not resolve.
    void finish();

    // The input `name` of `functor`: its name, a port alias, or a container's internal
    // input.
    static InputPort& findInput(const Functor& functor, const std::string& name,
                                const ScriptPosition& position);
    // What is said when no functor is registered under `name`.
    static std::string unknownFunctorMessage(const std::string& name);

private:
    struct Frame {
        FunctorContainer* container;
        // The container as a functor, none for the script; found once per frame, not
        // once per functor placed in it.
        ContainerFunctor* owner;
        Functor* current;
        // The inputs of `current` given so far. Only the current functor takes inputs,
        // and a functor that is no longer current never is again.
        std::vector<const InputPort*> given;
    };
    struct PendingBinding {
        InputPort* port;
        std::string alias;
        std::string output;
        ScriptPosition position;
    };

    static DataEditor& takeValueEditor(InputPort& port, const ScriptPosition& position);
    void registerAlias(Functor& functor, const std::string& alias, const ScriptPosition& position);
    void checkContainment(Functor& functor, const ScriptPosition& position) const;
    void resolve(const PendingBinding& binding) const;
    static OutputPort* findOutput(const Functor& peer, const std::string& name,
                                  const InputPort& reader);
    static std::string unknownPortMessage(const Functor& functor, const std::string& name);
    static std::string unknownOutputMessage(const Functor& functor, const std::string& name);
    static std::string noReaderMessage(const std::string& typeName);

    Script& script_;
    std::vector<Frame> frames_;
    std::vector<std::pair<std::string, std::string>> pendingProperties_;
    ScriptAliasTable aliases_;
    bool workdirsGiven_ = false;
    std::vector<PendingBinding> bindings_;
    ScriptValueReaders valueReaders_;
};

} // namespace VRK

#endif
