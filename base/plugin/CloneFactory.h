#ifndef VRK_BASE_PLUGIN_CLONEFACTORY_H
#define VRK_BASE_PLUGIN_CLONEFACTORY_H

#include "base/error/ExceptionUtils.h"

#include <loki/LokiTypeInfo.h>

#include <map>
#include <mutex>
#include <string>

namespace VRK {

// Copies objects by their run-time class, for products handed out as shared pointers.
template <class Product, class Abstract, class Cloner, class Error>
class CloneFactory {
public:
    bool Register(const Loki::TypeInfo& type, Cloner cloner)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return cloners_.emplace(type, cloner).second;
    }

    Product create(const Abstract& model) const
    {
        Cloner cloner = nullptr;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            auto found = cloners_.find(Loki::TypeInfo(typeid(model)));
            if (found != cloners_.end())
                cloner = found->second;
        }
        if (!cloner)
            ExceptionUtils::raise<Error>(std::string("No cloner is registered for the class \"")
                                         + typeid(model).name() + "\".");
        return cloner(model);
    }

private:
    mutable std::mutex mutex_;
    std::map<Loki::TypeInfo, Cloner> cloners_;
};

} // namespace VRK

#endif
