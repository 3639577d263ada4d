#ifndef VRK_BASE_GRAPH_PORTSCOPE_H
#define VRK_BASE_GRAPH_PORTSCOPE_H

#include <vector>

namespace VRK {

class DataHolder;
class Functor;
class FunctorContainer;
class InputPort;

// Where ports read and publish. A container's internal output is a source for its
// contents only; its internal input is fed from inside it. Reading and writing scripts,
// verifying them and ordering functors all ask these questions.
class PortScope {
public:
    static bool isInternalInput(const InputPort& port);
    static bool isInternalOutput(const DataHolder& port);
    // The container from which `port` reads: the owner itself for an internal input,
    // else the owner's container (the script at the top).
    static FunctorContainer* getReadingContainer(const InputPort& port);
    // Whether `container` is `functor` or lies inside it.
    static bool isWithin(const FunctorContainer* container, const Functor& functor);
    // Every input of `functor`: its ports, then a container's internal inputs.
    static std::vector<InputPort*> getAllInputs(const Functor& functor);
};

} // namespace VRK

#endif
