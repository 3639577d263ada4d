#ifndef VRK_BASE_GRAPH_WORKDIRBINDING_H
#define VRK_BASE_GRAPH_WORKDIRBINDING_H

namespace VRK {

class ContainerFunctor;
class FunctorContainer;
class InputPort;
class OutputPort;

// A functor that reads or writes files has an input "workdir", of a type that says it is
// a work directory (`BaseType::isWorkdir`), that modellers leave unbound: the host binds it to the internal output "workdir" of the
// nearest enclosing container that has one. Scripts never spell these bindings out.
class WorkdirBinding {
public:
    // Whether `port` is such a work-directory input.
    static bool isWorkdirPort(const InputPort& port);
    // The internal output that `port` takes its work directory from; none when no
    // enclosing container publishes one.
    static OutputPort* findImplicitPeer(const InputPort& port);
    // Whether `port` is bound exactly as the host would bind it.
    static bool isImplicitlyBound(const InputPort& port);
    // Binds every unbound work-directory input inside `container`, at every depth.
    // True when `container` gives the functors inside it a work directory.
    static bool givesWorkdir(const ContainerFunctor& container);
    static void bindAll(const FunctorContainer& container);
};

} // namespace VRK

#endif
