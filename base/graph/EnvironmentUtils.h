#ifndef VRK_BASE_GRAPH_ENVIRONMENTUTILS_H
#define VRK_BASE_GRAPH_ENVIRONMENTUTILS_H

#include "base/data/BaseType.h"
#include "base/error/Exception.h"
#include "base/error/ExceptionUtils.h"
#include "base/graph/FunctorContainer.h"
#include "base/graph/HookFunctor.h"

#include <cassert>
#include <map>
#include <memory>
#include <sstream>
#include <string>

namespace VRK {

// Gathers the values that hook functors register in their container into an
// environment: a map from key to value. A plugin instantiates it for each kind of
// registrator, naming the data classes of the key and value ports (KeyDataT,
// ValueDataT) and how a key read from a port becomes a key of the map.
class EnvironmentUtils {
public:
    // The identity of keys, for maps keyed by what the key port holds.
    struct SameKey {
        template <class KeyT>
        const KeyT& operator()(const KeyT& key) const
        {
            return key;
        }
    };

    // Registers every functor of `container` whose type is `registratorType`, in the
    // container's order; other functors are left alone.
    template <class KeyDataT, class ValueDataT, class KeyT, class ValueT, class Convert>
    static void
    registerAllHooksInEnvironment(std::map<KeyT, ValueT>& env, const FunctorContainer& container,
                                  const std::string& keyPort, const std::string& valuePort,
                                  const std::shared_ptr<BaseType>& registratorType, Convert convert)
    {
        const FunctorContainer::FunctorIterator functors = container.getFunctorIterator();
        while (functors.hasNext()) {
            Functor* hook = functors.next();
            assert(hook != 0 && "hook != 0");
            assert(hook->getType() != 0 && "hook->getType() != 0");
            if (hook->getType()->getName() != registratorType->getName())
                continue;
            auto* registrator = dynamic_cast<HookFunctor*>(hook);
            assert(registrator != 0 && "registrator != 0");
            registerHookInEnvironment<KeyDataT, ValueDataT>(env, *registrator, keyPort, valuePort,
                                                            convert);
        }
    }

    // The first registration of a key stays: a second one fails the run. Either way
    // the hook gives up what it pulled, so that a later pass sees only fresh data.
    template <class KeyDataT, class ValueDataT, class KeyT, class ValueT, class Convert>
    static void registerHookInEnvironment(std::map<KeyT, ValueT>& env, HookFunctor& hook,
                                          const std::string& keyPort, const std::string& valuePort,
                                          Convert convert)
    {
        const KeyT key = convert(hook.getInputPortValue<KeyDataT>(keyPort));
        const ValueT value = hook.getInputPortValue<ValueDataT>(valuePort);
        const bool inserted = env.emplace(key, value).second;
        hook.resetInputPortData2();
        if (!inserted)
            ExceptionUtils::raise<Exception>(duplicateKeyMessage(key));
    }

    template <class KeyT>
    static std::string duplicateKeyMessage(const KeyT& key)
    {
        std::ostringstream message;
        message.precision(20);
        message << "The key \"" << key << "\" is already in use by another hook functor.";
        return message.str();
    }
};

} // namespace VRK

#endif
