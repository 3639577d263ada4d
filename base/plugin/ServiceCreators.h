#ifndef VRK_BASE_PLUGIN_SERVICECREATORS_H
#define VRK_BASE_PLUGIN_SERVICECREATORS_H

#include <memory>

namespace VRK {

// The creator and the cloner that a factory keeps for a class T made as an Abstract:
// schedulers, verifiers, script and wizard readers and writers, converters.
class ServiceCreators {
public:
    template <class Abstract, class T>
    static std::shared_ptr<Abstract> create()
    {
        return std::make_shared<T>();
    }

    template <class Abstract, class T>
    static Abstract* clone(const Abstract* model)
    {
        return new T(dynamic_cast<const T&>(*model));
    }
};

} // namespace VRK

#endif
