#ifndef VRK_BASE_SCRIPT_DOT_GRAPHVIZSCRIPTWRITER_H
#define VRK_BASE_SCRIPT_DOT_GRAPHVIZSCRIPTWRITER_H

#include "base/script/ScriptWriter.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>

namespace VRK {

class Functor;

// Draws a script as a Graphviz graph (".dot"): one cluster per container, one node per
// functor showing its name (with its alias) and its banner, one edge per binding from
// the functor that publishes to the one that reads, labelled with both ports. A
// container's own node stands inside its cluster. The drawing is not read back.
class GraphvizScriptWriter : public ScriptWriter {
public:
    static const std::set<std::string> FileExtensions;

    GraphvizScriptWriter();
    ~GraphvizScriptWriter() override;

protected:
    void writeImpl(Script* script, std::ostream& out, const std::string& filename) override;

private:
    using NodeIds = std::map<const Functor*, std::string>;

    static void writeNode(const Functor& functor, const NodeIds& ids, size_t depth,
                          std::ostream& out);
    static void writeEdges(const Functor& functor, const NodeIds& ids, std::ostream& out);
};

} // namespace VRK

#endif
