#include "base/graph/ContainerFunctor.h"

#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

ContainerFunctor::ContainerFunctor(const std::string& name, const std::string& description,
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

void ContainerFunctor::toStream(std::ostream& out, int indent) const
{
    Functor::toStream(out, indent);
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
    for (const auto& functor : getFunctors())
        functor->toStream(out, indent + 1);
}

void ContainerFunctor::setLevel(size_t level)
{
    Functor::setLevel(level);
    for (const auto& functor : getFunctors())
        functor->setLevel(level + 1);
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
    if (!recursive)
        return;
    for (const auto& functor : getFunctors())
        functor->resetOutputPortData(recursive);
}

void ContainerFunctor::preparePorts()
{
    Functor::preparePorts();
    for (const auto& functor : getFunctors())
        functor->preparePorts();
}

void ContainerFunctor::prepare()
{
    Functor::prepare();
    for (const auto& functor : getFunctors())
        functor->prepare();
}

void ContainerFunctor::runImpl() { runContainerImpl(); }

void ContainerFunctor::onContainerAdded(FunctorContainer& container)
{
    Functor::onContainerAdded(container);
    for (const auto& functor : getFunctors())
        functor->onIndirectContainerAdded(container, 1);
}

void ContainerFunctor::onContainerErased()
{
    Functor::onContainerErased();
    for (const auto& functor : getFunctors())
        functor->onIndirectContainerErased(1);
}

void ContainerFunctor::onIndirectContainerAdded(FunctorContainer& container, size_t depth)
{
    Functor::onIndirectContainerAdded(container, depth);
    for (const auto& functor : getFunctors())
        functor->onIndirectContainerAdded(container, depth + 1);
}

void ContainerFunctor::onIndirectContainerErased(size_t depth)
{
    Functor::onIndirectContainerErased(depth);
    for (const auto& functor : getFunctors())
        functor->onIndirectContainerErased(depth + 1);
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

void ContainerFunctor::addInternalOutputPort(const std::string& name,
                                             const std::string& description,
                                             const std::shared_ptr<BaseType>& type)
{
    assert(!getInternalOutputPort(name) && "internal output port names are unique");
    internalOutputs_.push_back(std::make_shared<OutputPort>(name, description, type, false));
    internalOutputs_.back()->setOwner(this);
}

void ContainerFunctor::addInternalInputPort(const std::string& name,
                                            const std::string& description,
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

StrongInputPort* ContainerFunctor::getInternalInputPort(const std::string& name) const
{
    for (const auto& port : internalInputs_)
        if (port->getName() == name)
            return port.get();
    return nullptr;
}

OutputPort* ContainerFunctor::getInternalOutputPort(const std::string& name) const
{
    for (const auto& port : internalOutputs_)
        if (port->getName() == name)
            return port.get();
    return nullptr;
}

} // namespace VRK
