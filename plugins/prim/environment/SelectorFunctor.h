#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTORFUNCTOR_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_SELECTORFUNCTOR_H

#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/EnvironmentUtils.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/util/Singleton.h"
#include "plugins/prim/environment/SeriesUtils.h"
#include "plugins/prim/values/numbers/IntData.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

#include <cassert>
#include <map>
#include <string>

namespace Prim {

// Picks, for the index on "step", one item of the numbered series that the registrators
// inside it make (hook functors of type RegistratorTypeT whose value is of type
// ValueTypeT): the item with the greatest number not above the index.
template <class ValueTypeT, class RegistratorTypeT>
class SelectorFunctor : public VRK::ContainerFunctor {
public:
    using DataT = typename ValueTypeT::DataType;

    SelectorFunctor(const SelectorFunctor&) = default;
    ~SelectorFunctor() override = default;

    bool isCompatible(VRK::Functor* functor) const override
    {
        assert(functor != 0 && "functor != 0");
        return functor->getType() != 0
               && functor->getType()->getName()
                      == VRK::Singleton<RegistratorTypeT>::getInstance()->getName();
    }

    void runContainerImpl() override
    {
        const int index = getInputPortValue<IntData>(stepPort_);
        VRK::ContainerFunctorUtils::runFunctorsInContainer(*this, VRK::warning);
        std::map<int, typename DataT::ValueType> series;
        VRK::EnvironmentUtils::registerAllHooksInEnvironment<IntData, DataT>(
            series, *this, keyPort_, valuePort_, VRK::Singleton<RegistratorTypeT>::getInstance(),
            VRK::EnvironmentUtils::SameKey());
        const auto* item = SeriesUtils::pick(series, index);
        if (!item)
            VRK::ExceptionUtils::raise<VRK::Exception>(
                "The entity corresponding to key " + std::to_string(index) + " is not defined.");
        setOutputPortValue<DataT>(outputPort_, *item);
    }

protected:
    SelectorFunctor(const std::string& name, const std::string& description,
                    const std::string& keyPort, const std::string& valuePort,
                    const std::string& outputPort, const std::string& outputDescription)
        : VRK::ContainerFunctor(name, description, nullptr), keyPort_(keyPort),
          valuePort_(valuePort), stepPort_("step"), outputPort_(outputPort)
    {
        addInputPort(stepPort_, "Current index, step or model iteration.",
                     PositiveIntType::getInstance(), false);
        addOutputPort(outputPort_, outputDescription, ValueTypeT::getInstance());
    }

private:
    std::string keyPort_;
    std::string valuePort_;
    std::string stepPort_;
    std::string outputPort_;
};

} // namespace Prim

#endif
