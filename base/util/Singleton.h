#ifndef VRK_BASE_UTIL_SINGLETON_H
#define VRK_BASE_UTIL_SINGLETON_H

#include <cassert>
#include <memory>

namespace VRK {

// The one instance of T in the process, created on first use.
template <class T>
class Singleton {
public:
    static const std::shared_ptr<T>& getInstance()
    {
        static const std::shared_ptr<T> instance = std::make_shared<T>();
        assert(instance != 0 && "instance != 0");
        return instance;
    }
};

} // namespace VRK

#endif
