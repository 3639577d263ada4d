#ifndef VRK_BASE_DATA_DATAPOOL_H
#define VRK_BASE_DATA_DATAPOOL_H

#include <cstddef>
#include <memory>
#include <utility>

namespace VRK {

// Memory for data objects. A loop makes and drops a few small data objects at every
// pass; each thread keeps the blocks it frees for the next ones it makes, instead of
// handing them back to the general allocator.
class DataPool {
public:
    // A new DataT made of `arguments`, owned by the pointer, in pooled memory.
    template <class DataT, class... Arguments>
    static std::shared_ptr<const DataT> make(Arguments&&... arguments)
    {
        return std::allocate_shared<DataT>(Allocator<DataT>(),
                                           std::forward<Arguments>(arguments)...);
    }

    static void* allocate(std::size_t bytes);
    static void deallocate(void* block, std::size_t bytes) noexcept;

    template <class T>
    class Allocator {
    public:
        using value_type = T;

        Allocator() = default;
        template <class U>
        Allocator(const Allocator<U>&) noexcept
        {
        }

        T* allocate(std::size_t count)
        {
            return static_cast<T*>(DataPool::allocate(count * sizeof(T)));
        }
        void deallocate(T* block, std::size_t count) noexcept
        {
            DataPool::deallocate(block, count * sizeof(T));
        }

        template <class U>
        bool operator==(const Allocator<U>&) const noexcept
        {
            return true;
        }
        template <class U>
        bool operator!=(const Allocator<U>&) const noexcept
        {
            return false;
        }
    };
};

} // namespace VRK

#endif
