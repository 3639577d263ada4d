#ifndef VRK_BASE_GRAPH_FUNCTOR_H
#define VRK_BASE_GRAPH_FUNCTOR_H

#include "base/data/DataCast.h"
#include "base/data/DataPool.h"
#include "base/data/Typeable.h"
#include "base/error/DataException.h"
#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalTypeException.h"
#include "base/graph/InputPort.h"
#include "base/graph/OutputPort.h"
#include "base/graph/Verifiable.h"
#include "base/util/Propertiable.h"
#include "base/util/ScriptPosition.h"

#include <boost/container/small_vector.hpp>

#include <bitset>
#include <cassert>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace VRK {

class ContainerFunctor;
class FunctorContainer;

// Flags of a functor, by number: what kind of functor it is, for tools that show or
// arrange scripts. The host's meanings of the numbers that plugins set:
using FunctorFlag = unsigned int;
namespace FunctorFlags {
// A registrator whose run does nothing: its value is collected by a selector.
constexpr FunctorFlag PassiveRegistrator = 1;
// Carries a typed-in or bound value unchanged to its output.
constexpr FunctorFlag DataCarrier = 2;
// Passes on its initial input on a loop's first pass and its feedback afterwards.
constexpr FunctorFlag Multiplexer = 3;
// Passes on whichever of its alternative inputs is bound.
constexpr FunctorFlag Junction = 4;
// Names a folder of the file system, or sets one for its contents.
constexpr FunctorFlag Folder = 8;
} // namespace FunctorFlags

// An operator of a script: typed input and output ports and a run operation.
// The order of the virtual operations below is part of the plugin interface.
class Functor : public Typeable, public Verifiable, public Propertiable {
public:
    Functor(std::string_view name, std::string_view description,
            const std::shared_ptr<BaseType>& type);
    Functor(const Functor& other);
    Functor& operator=(const Functor& other);
    ~Functor() override;

    void toStream(std::ostream& out, int indent) const override;
    virtual void setLevel(size_t level);
    // Clears the data that bound inputs pulled; feedback inputs too when `feedback`.
    virtual void resetInputPortData(bool feedback);
    virtual void resetOutputPortData(bool recursive);
    virtual void preparePorts();
    virtual void prepare();
    virtual void runImpl() = 0;
    virtual void onContainerAdded(FunctorContainer& container);
    virtual void onContainerErased();
    virtual void onIndirectContainerAdded(FunctorContainer& container, size_t depth);
    virtual void onIndirectContainerErased(size_t depth);

    // Runs the functor once: fills its inputs, then `runImpl`.
    void run();
    // Pulls the data of every input (peer data or typed-in value).
    void pullInputs();

    // Ports. Inputs and outputs are separate name spaces; aliases name inputs too.
    void addInputPort(std::string_view name, std::string_view description,
                      const std::shared_ptr<BaseType>& type, bool linked,
                      const std::vector<std::string>& aliases = {});
    void addInputPort(const InputPort& port, const std::vector<std::string>& aliases = {});
    // Takes `port` itself rather than a copy, for ports of a kind of their own built
    // by the functor.
    void addInputPort(const std::shared_ptr<InputPort>& port,
                      const std::vector<std::string>& aliases = {});
    std::shared_ptr<DataEditor> addOptionalInputPort(std::string_view name,
                                                     std::string_view description,
                                                     const std::shared_ptr<BaseType>& type,
                                                     bool linked, unsigned int level,
                                                     const std::vector<std::string>& aliases = {});
    void addOutputPort(std::string_view name, std::string_view description,
                       const std::shared_ptr<BaseType>& type, bool linked = false);
    void addOutputPort(const OutputPort& port, const std::vector<std::string>& aliases = {});

    InputPort* getInputPort(std::string_view nameOrAlias) const;
    OutputPort* getOutputPort(std::string_view name) const;
    // Most functors have a few ports: they are held in the functor itself, not in blocks
    // of their own that every functor of a script would allocate.
    using InputPorts = boost::container::small_vector<std::shared_ptr<InputPort>, 3>;
    using OutputPorts = boost::container::small_vector<std::shared_ptr<OutputPort>, 1>;
    const InputPorts& getInputPorts() const { return inputs_; }
    const OutputPorts& getOutputPorts() const { return outputs_; }
    std::vector<std::string> getInputPortAliases(const std::string& name) const;

    // The value of an input as data class DataT (an Int input read as DoubleData works).
    template <class DataT>
    const typename DataT::ValueType& getInputPortValue(std::string_view name) const
    {
        return typedData<DataT>(requireInputPort(name)).getValue();
    }
    template <class DataT>
    void setOutputPortValue(std::string_view name, const typename DataT::ValueType& value)
    {
        requireOutputPort(name).setDataPtr(DataPool::make<DataT>(value));
    }

    // Passes the data of `input` on to `output` as DataT: the data object
    // itself when it is of that very class (data are immutable), a new DataT of its
    // value otherwise.
    template <class DataT>
    void passOnInputPortValue(const InputPort& input, OutputPort& output)
    {
        const DataT& data = typedData<DataT>(input);
        if (typeid(data) == typeid(DataT))
            output.setDataPtr(input.getDataPtr());
        else
            output.setDataPtr(DataPool::make<DataT>(data.getValue()));
    }

    void setFlag(FunctorFlag flag, bool value);
    bool getFlag(FunctorFlag flag) const;
    size_t getLevel() const { return level_; }

    // The functor as a container of others; none for a functor that holds none. A
    // virtual call rather than a cast: walks over a script ask it of every functor.
    virtual ContainerFunctor* asContainer() { return nullptr; }
    virtual const ContainerFunctor* asContainer() const { return nullptr; }

    // Where the functor sits: its container, the script at the top, its alias there.
    FunctorContainer* getContainer() const { return container_; }
    void setContainer(FunctorContainer* container) { container_ = container; }
    const std::string& getAlias() const { return alias_; }
    void setAlias(const std::string& alias) { alias_ = alias; }
    const ScriptPosition& getPosition() const { return position_; }
    void setPosition(const ScriptPosition& position) { position_ = position; }

protected:
    InputPort& requireInputPort(std::string_view name) const;
    OutputPort& requireOutputPort(std::string_view name) const;

    // The data of `holder` as DataT; a missing or foreign datum is the modeller's error.
    template <class DataT>
    const DataT& typedData(const DataHolder& holder) const
    {
        if (!holder.hasData())
            ExceptionUtils::raise<DataException>(missingDataMessage(holder));
        const DataT* data = DataCast::find<DataT>(holder.getData());
        if (!data)
            ExceptionUtils::raise<IllegalTypeException>(wrongDataMessage(holder));
        return *data;
    }
    std::string missingDataMessage(const DataHolder& holder) const;
    std::string wrongDataMessage(const DataHolder& holder) const;

private:
    void adoptInputPort(const std::shared_ptr<InputPort>& port,
                        const std::vector<std::string>& aliases);
    void adoptOutputPort(const std::shared_ptr<OutputPort>& port);
    void copyPortsFrom(const Functor& other);

    InputPorts inputs_;
    OutputPorts outputs_;
    std::vector<std::pair<std::string, std::string>> inputAliases_;
    std::bitset<32> flags_;
    size_t level_ = 0;
    FunctorContainer* container_ = nullptr;
    std::string alias_;
    ScriptPosition position_;
};

} // namespace VRK

#endif
