#ifndef VRK_BASE_GRAPH_CONTAINERFUNCTOR_H
#define VRK_BASE_GRAPH_CONTAINERFUNCTOR_H

#include "base/graph/FeedbackStrongInputPort.h"
#include "base/graph/Functor.h"
#include "base/graph/FunctorContainer.h"
#include "base/graph/StrongInputPort.h"

namespace VRK {

// A functor that holds other functors. Internal output ports are sources for its
// contents; internal input ports are fed by its contents and read after a pass.
class ContainerFunctor : public Functor, public FunctorContainer {
public:
    ContainerFunctor(std::string_view name, std::string_view description,
                     const std::shared_ptr<BaseType>& type);
    ContainerFunctor(const ContainerFunctor& other);
    ~ContainerFunctor() override;

    void toStream(std::ostream& out, int indent) const override;
    void setLevel(size_t level) override;
    void resetInputPortData(bool feedback) override;
    void resetOutputPortData(bool recursive) override;
    void preparePorts() override;
    void prepare() override;
    // Runs the contents once, through `runContainerImpl`.
    void runImpl() override;
    void onContainerAdded(FunctorContainer& container) override;
    void onContainerErased() override;
    void onIndirectContainerAdded(FunctorContainer& container, size_t depth) override;
    void onIndirectContainerErased(size_t depth) override;
    // Whether `functor` may be placed inside.
    virtual bool isCompatible(Functor* functor) const;
    virtual void runContainerImpl();

    // How the contents of every container run, one pass: the run engine provides it when
    // the host library loads, so that the functor graph knows nothing of schedulers.
    using ContentsRunner = void (*)(const ContainerFunctor& container);
    static void setContentsRunner(ContentsRunner runner);

    Functor* asFunctor() override { return this; }
    const Functor* asFunctor() const override { return this; }
    ContainerFunctor* asContainer() override { return this; }
    const ContainerFunctor* asContainer() const override { return this; }

    void addInternalOutputPort(std::string_view name, std::string_view description,
                               const std::shared_ptr<BaseType>& type);
    void addInternalInputPort(std::string_view name, std::string_view description,
                              const std::shared_ptr<BaseType>& type);
    void addInternalInputPort(const FeedbackStrongInputPort& port);
    StrongInputPort* getInternalInputPort(std::string_view name) const;
    OutputPort* getInternalOutputPort(std::string_view name) const;
    const std::vector<std::shared_ptr<StrongInputPort>>& getInternalInputPorts() const
    {
        return internalInputs_;
    }
    const std::vector<std::shared_ptr<OutputPort>>& getInternalOutputPorts() const
    {
        return internalOutputs_;
    }

    // Typed access to internal ports; PortTypeT is the port's type class.
    template <class PortTypeT>
    void setInternalOutputPortValue(std::string_view name,
                                    const typename PortTypeT::DataType::ValueType& value)
    {
        OutputPort* port = getInternalOutputPort(name);
        assert(port != 0 && "port != 0");
        assert(PortTypeT::getInstance() == port->getType()
               && "PortTypeT::getInstance() == port->getType()");
        port->setDataPtr(DataPool::make<typename PortTypeT::DataType>(value));
    }
    template <class PortTypeT>
    const typename PortTypeT::DataType::ValueType&
    getInternalInputPortValue(const std::string& name) const
    {
        assert(PortTypeT::getInstance() == getInternalInputPort(name)->getType()
               && "PortTypeT::getInstance() == getInternalInputPort( name )->getType()");
        return typedData<typename PortTypeT::DataType>(*getInternalInputPort(name)).getValue();
    }

private:
    void copyContentsFrom(const ContainerFunctor& other);
    void writeInternalPorts(std::ostream& out, int indent) const;

    std::vector<std::shared_ptr<StrongInputPort>> internalInputs_;
    std::vector<std::shared_ptr<OutputPort>> internalOutputs_;
};

} // namespace VRK

#endif
