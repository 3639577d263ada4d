#include "base/graph/Functor.h"

#include "base/data/BaseType.h"
#include "base/error/Trace.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorContainer.h"
#include "base/graph/FunctorNameUtils.h"

#include <algorithm>
#include <sstream>

namespace VRK {

Functor::Functor(std::string_view name, std::string_view description,
                 const std::shared_ptr<BaseType>& type)
    : Typeable(name, description, type)
{
}

Functor::Functor(const Functor& other)
    : Typeable(other), Verifiable(other), Propertiable(other),
      inputAliases_(other.inputAliases_), flags_(other.flags_), level_(other.level_),
      alias_(), position_(other.position_)
{
    copyPortsFrom(other);
}

Functor& Functor::operator=(const Functor& other)
{
    if (this == &other)
        return *this;
    Typeable::operator=(other);
    Propertiable::operator=(other);
    inputAliases_ = other.inputAliases_;
    flags_ = other.flags_;
    level_ = other.level_;
    position_ = other.position_;
    copyPortsFrom(other);
    return *this;
}

Functor::~Functor() = default;

void Functor::copyPortsFrom(const Functor& other)
{
    inputs_.clear();
    outputs_.clear();
    for (const auto& port : other.inputs_) {
        inputs_.push_back(port->clone());
        inputs_.back()->setOwner(this);
    }
    for (const auto& port : other.outputs_) {
        outputs_.push_back(std::make_shared<OutputPort>(*port));
        outputs_.back()->resetData();
        outputs_.back()->setOwner(this);
    }
}

void Functor::toStream(std::ostream& out, int indent) const
{
    nestIndent(out, indent) << "Functor \"" << getName() << "\": " << getDescription() << '\n';
    for (const auto& port : inputs_) {
        nestIndent(out, indent + 1) << "input ";
        port->toStream(out, 0);
        out << (port->isOptional() ? " optional" : "") << '\n';
    }
    for (const auto& port : outputs_) {
        nestIndent(out, indent + 1) << "output ";
        port->toStream(out, 0);
        out << '\n';
    }
}

void Functor::setLevel(size_t level) { level_ = level; }

void Functor::resetInputPortData(bool feedback)
{
    for (const auto& port : inputs_)
        if (port->isBound() && (feedback || !port->isFeedback()))
            port->resetData();
}

void Functor::resetOutputPortData(bool)
{
    for (const auto& port : outputs_)
        port->resetData();
}

void Functor::preparePorts()
{
    for (const auto& port : inputs_)
        if (port->hasDataEditor())
            port->getDataEditor()->prepare();
}

void Functor::prepare() {}

void Functor::onContainerAdded(FunctorContainer& container) { container_ = &container; }

void Functor::onContainerErased() { container_ = nullptr; }

void Functor::onIndirectContainerAdded(FunctorContainer&, size_t) {}

void Functor::onIndirectContainerErased(size_t) {}

namespace {
std::string describeRun(const void* functor)
{
    return "running " + FunctorNameUtils::describeAt(*static_cast<const Functor*>(functor));
}
} // namespace


void Functor::run()
{
    Trace frame(this, &describeRun);
    if (container_)
        container_->noteContentsRun();
    pullInputs();
    runImpl();
}

void Functor::pullInputs()
{
    for (const auto& port : inputs_)
        port->pullData();
}

void Functor::adoptInputPort(const std::shared_ptr<InputPort>& port,
                             const std::vector<std::string>& aliases)
{
    assert(!getInputPort(port->getName()) && "input port names are unique");
    port->setOwner(this);
    inputs_.push_back(port);
    for (const auto& alias : aliases)
        inputAliases_.emplace_back(alias, port->getName());
}

void Functor::addInputPort(std::string_view name, std::string_view description,
                           const std::shared_ptr<BaseType>& type, bool linked,
                           const std::vector<std::string>& aliases)
{
    auto port = std::make_shared<InputPort>(name, description, type, linked);
    if (type)
        port->setDataEditor(type->createEditor());
    adoptInputPort(port, aliases);
}

void Functor::addInputPort(const InputPort& port, const std::vector<std::string>& aliases)
{
    adoptInputPort(port.clone(), aliases);
}

void Functor::addInputPort(const std::shared_ptr<InputPort>& port,
                           const std::vector<std::string>& aliases)
{
    assert(port != 0 && "a functor declares a port it has made");
    adoptInputPort(port, aliases);
}

std::shared_ptr<DataEditor> Functor::addOptionalInputPort(std::string_view name,
                                                          std::string_view description,
                                                          const std::shared_ptr<BaseType>& type,
                                                          bool linked, unsigned int,
                                                          const std::vector<std::string>& aliases)
{
    addInputPort(name, description, type, linked, aliases);
    InputPort* port = inputs_.back().get();
    port->setOptional(true);
    return port->getDataEditorPtr();
}

// Built in place: every functor of a script read makes its ports, and a copy of each
// would cost as much again.
void Functor::addOutputPort(std::string_view name, std::string_view description,
                            const std::shared_ptr<BaseType>& type, bool linked)
{
    adoptOutputPort(std::make_shared<OutputPort>(name, description, type, linked));
}

void Functor::addOutputPort(const OutputPort& port, const std::vector<std::string>&)
{
    adoptOutputPort(std::make_shared<OutputPort>(port));
}

void Functor::adoptOutputPort(const std::shared_ptr<OutputPort>& port)
{
    assert(!getOutputPort(port->getName()) && "output port names are unique");
    outputs_.push_back(port);
    port->setOwner(this);
}

InputPort* Functor::getInputPort(std::string_view nameOrAlias) const
{
    for (const auto& port : inputs_)
        if (port->getName() == nameOrAlias)
            return port.get();
    for (const auto& alias : inputAliases_)
        if (alias.first == nameOrAlias)
            return getInputPort(alias.second);
    return nullptr;
}

OutputPort* Functor::getOutputPort(std::string_view name) const
{
    for (const auto& port : outputs_)
        if (port->getName() == name)
            return port.get();
    return nullptr;
}

std::vector<std::string> Functor::getInputPortAliases(const std::string& name) const
{
    std::vector<std::string> aliases;
    for (const auto& alias : inputAliases_)
        if (alias.second == name)
            aliases.push_back(alias.first);
    return aliases;
}

void Functor::setFlag(FunctorFlag flag, bool value)
{
    assert(flag < flags_.size() && "flag < 32");
    flags_.set(flag, value);
}

bool Functor::getFlag(FunctorFlag flag) const
{
    assert(flag < flags_.size() && "flag < 32");
    return flags_.test(flag);
}

InputPort& Functor::requireInputPort(std::string_view name) const
{
    InputPort* port = getInputPort(name);
    assert(port != 0 && "the functor declares the input it asks for");
    return *port;
}

OutputPort& Functor::requireOutputPort(std::string_view name) const
{
    OutputPort* port = getOutputPort(name);
    assert(port != 0 && "the functor declares the output it asks for");
    return *port;
}

std::string Functor::missingDataMessage(const DataHolder& holder) const
{
    return "The port \"" + holder.getName() + "\" of " + FunctorNameUtils::describeAt(*this)
           + " holds no data.";
}

std::string Functor::wrongDataMessage(const DataHolder& holder) const
{
    return "The port \"" + holder.getName() + "\" of " + FunctorNameUtils::describeAt(*this)
           + " holds data of another type than \""
           + (holder.getType() ? holder.getType()->getName() : std::string("?")) + "\".";
}

} // namespace VRK
