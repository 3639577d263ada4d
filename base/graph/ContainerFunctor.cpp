#include "base/graph/ContainerFunctor.h"

#include "base/graph/FunctorWalk.h"
#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

ContainerFunctor::ContainerFunctor(std::string_view name, std::string_view description,
                                   const std::shared_ptr<BaseType>& type)
    : Functor(name, description, type)
{
}

ContainerFunctor::ContainerFunctor(const ContainerFunctor& other)
    : Functor(other), FunctorContainer()
{
    for (const auto& port : other.internalInputs_) {
        internalInputs_.push_back(std::static_pointer_cast<StrongInputPort>(port->clone()));
        internalInputs_.back()->setOwner(this);
    }
    for (const auto& port : other.internalOutputs_) {
        internalOutputs_.push_back(std::make_shared<OutputPort>(*port));
        internalOutputs_.back()->resetData();
        internalOutputs_.back()->setOwner(this);
    }
    copyContentsFrom(other);
}

ContainerFunctor::~ContainerFunctor() = default;

void ContainerFunctor::copyContentsFrom(const ContainerFunctor& other)
{
    auto cloner = FactoryFarmManager::Instance().getFunctorCloneFactory();
    for (const auto& functor : other.getFunctors())
        addFunctor(cloner->create(*functor), false);
}

namespace {

// The recursive operations below reach the functors inside a container through one walk
// of their own rather than through nested calls, so that no depth of nesting exhausts
// the machine stack. The walk still calls every functor's own override; when it calls
// a container's, that container leaves its contents to the walk already under way.
enum class Operation { ToStream, SetLevel, ResetOutputs, PreparePorts, Prepare, Added, Erased };

struct ContentsWalk {
    Operation operation;
    const Functor* visiting;
};

thread_local ContentsWalk currentWalk{Operation::ToStream, nullptr};

// Calls `visit(functor, depth)` for every functor inside `container`, depth 1 for its
// direct contents, unless the walk of `operation` on this thread is visiting it.
template <class Visit>
void forEachWithin(const ContainerFunctor& container, Operation operation, const Visit& visit)
{
    if (currentWalk.visiting == &container && currentWalk.operation == operation)
        return;
    const ContentsWalk outer = currentWalk;
    struct Restore {
        const ContentsWalk& outer;
        ~Restore() { currentWalk = outer; }
    } restore{outer};
    FunctorWalk::walk(
        container,
        [&](Functor& functor, size_t depth) {
            currentWalk = ContentsWalk{operation, &functor};
            visit(functor, depth);
        },
        [](ContainerFunctor&, size_t) {});
}

} // namespace

void ContainerFunctor::toStream(std::ostream& out, int indent) const
{
    Functor::toStream(out, indent);
    writeInternalPorts(out, indent);
    forEachWithin(*this, Operation::ToStream, [&](Functor& functor, size_t depth) {
        functor.toStream(out, indent + static_cast<int>(depth));
    });
}

void ContainerFunctor::writeInternalPorts(std::ostream& out, int indent) const
{
    for (const auto& port : internalOutputs_) {
        nestIndent(out, indent + 1) << "internal output ";
        port->toStream(out, 0);
        out << '\n';
    }
    for (const auto& port : internalInputs_) {
        nestIndent(out, indent + 1) << "internal input ";
        port->toStream(out, 0);
        out << '\n';
    }
}

void ContainerFunctor::setLevel(size_t level)
{
    Functor::setLevel(level);
    forEachWithin(*this, Operation::SetLevel,
                  [&](Functor& functor, size_t depth) { functor.setLevel(level + depth); });
}

void ContainerFunctor::resetInputPortData(bool feedback)
{
    Functor::resetInputPortData(feedback);
    for (const auto& port : internalInputs_)
        if (feedback || !port->isFeedback())
            port->resetData();
}

void ContainerFunctor::resetOutputPortData(bool recursive)
{
    Functor::resetOutputPortData(recursive);
    if (!recursive || !takeContentsRun())
        return;
    forEachWithin(*this, Operation::ResetOutputs,
                  [](Functor& functor, size_t) { functor.resetOutputPortData(true); });
}

void ContainerFunctor::preparePorts()
{
    Functor::preparePorts();
    forEachWithin(*this, Operation::PreparePorts,
                  [](Functor& functor, size_t) { functor.preparePorts(); });
}

void ContainerFunctor::prepare()
{
    Functor::prepare();
    forEachWithin(*this, Operation::Prepare, [](Functor& functor, size_t) { functor.prepare(); });
}

void ContainerFunctor::runImpl() { runContainerImpl(); }

void ContainerFunctor::onContainerAdded(FunctorContainer& container)
{
    Functor::onContainerAdded(container);
    forEachWithin(*this, Operation::Added, [&](Functor& functor, size_t depth) {
        functor.onIndirectContainerAdded(container, depth);
    });
}

void ContainerFunctor::onContainerErased()
{
    Functor::onContainerErased();
    forEachWithin(*this, Operation::Erased,
                  [](Functor& functor, size_t depth) { functor.onIndirectContainerErased(depth); });
}

void ContainerFunctor::onIndirectContainerAdded(FunctorContainer& container, size_t depth)
{
    Functor::onIndirectContainerAdded(container, depth);
    forEachWithin(*this, Operation::Added, [&](Functor& functor, size_t below) {
        functor.onIndirectContainerAdded(container, depth + below);
    });
}

void ContainerFunctor::onIndirectContainerErased(size_t depth)
{
    Functor::onIndirectContainerErased(depth);
    forEachWithin(*this, Operation::Erased, [&](Functor& functor, size_t below) {
        functor.onIndirectContainerErased(depth + below);
    });
}

bool ContainerFunctor::isCompatible(Functor* functor) const
{
    assert(functor != 0 && "isCompatible is asked about a functor");
    return true;
}

namespace {
ContainerFunctor::ContentsRunner contentsRunner = nullptr;
}

void ContainerFunctor::setContentsRunner(ContentsRunner runner) { contentsRunner = runner; }

void ContainerFunctor::runContainerImpl()
{
    assert(contentsRunner && "the run engine provides the contents runner when it loads");
    contentsRunner(*this);
}

void ContainerFunctor::addInternalOutputPort(std::string_view name, std::string_view description,
                                             const std::shared_ptr<BaseType>& type)
{
    assert(!getInternalOutputPort(name) && "internal output port names are unique");
    internalOutputs_.push_back(std::make_shared<OutputPort>(name, description, type, false));
    internalOutputs_.back()->setOwner(this);
}

void ContainerFunctor::addInternalInputPort(std::string_view name, std::string_view description,
                                            const std::shared_ptr<BaseType>& type)
{
    assert(!getInternalInputPort(name) && "internal input port names are unique");
    internalInputs_.push_back(std::make_shared<StrongInputPort>(name, description, type));
    internalInputs_.back()->setOwner(this);
}

void ContainerFunctor::addInternalInputPort(const FeedbackStrongInputPort& port)
{
    assert(!getInternalInputPort(port.getName()) && "internal input port names are unique");
    internalInputs_.push_back(std::make_shared<FeedbackStrongInputPort>(port));
    internalInputs_.back()->setOwner(this);
}

StrongInputPort* ContainerFunctor::getInternalInputPort(std::string_view name) const
{
    for (const auto& port : internalInputs_)
        if (port->getName() == name)
            return port.get();
    return nullptr;
}

OutputPort* ContainerFunctor::getInternalOutputPort(std::string_view name) const
{
    for (const auto& port : internalOutputs_)
        if (port->getName() == name)
            return port.get();
    return nullptr;
}

} // namespace VRK
