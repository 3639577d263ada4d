#ifndef VRK_BASE_UTIL_LOCKABLE_H
#define VRK_BASE_UTIL_LOCKABLE_H

#include <mutex>

namespace VRK {

// An object that threads can lock while they change it; a copy gets its own lock.
class Lockable {
public:
    Lockable() = default;
    Lockable(const Lockable&) {}
    Lockable& operator=(const Lockable&) { return *this; }
    virtual ~Lockable();

    void lock() const { mutex_.lock(); }
    void unlock() const { mutex_.unlock(); }

private:
    mutable std::recursive_mutex mutex_;
};

} // namespace VRK

#endif
