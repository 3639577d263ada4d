#ifndef VRK_BASE_DATA_DATACAST_H
#define VRK_BASE_DATA_DATACAST_H

#include "base/data/BaseData.h"

#include <atomic>
#include <cstdint>
#include <typeinfo>

namespace VRK {

// The part of a data object that a reader asks for, or none. Data classes share their
// base virtually, and a general dynamic_cast then walks the whole class hierarchy at
// every read. A loop reads the same classes pass after pass, so each wanted class
// remembers where it lay in the class it was last found in; the walk is left for the
// first read and for classes that alternate.
class DataCast {
public:
    template <class DataT>
    static const DataT* find(const BaseData& data)
    {
        const std::type_info& type = typeid(data);
        const void* whole = dynamic_cast<const void*>(&data);
        if (&type == &typeid(DataT))
            return static_cast<const DataT*>(whole);
        std::atomic<std::uint64_t>& memo = memoOf<DataT>();
        const std::uint64_t remembered = memo.load(std::memory_order_relaxed);
        if (remembered != 0 && typeOf(remembered) == &type)
            return reinterpret_cast<const DataT*>(static_cast<const char*>(whole)
                                                  + offsetOf(remembered));
        const DataT* part = dynamic_cast<const DataT*>(&data);
        if (part)
            remember(memo, type, whole, part);
        return part;
    }

private:
    // The class and the part's offset in it, in one word so that threads never see the
    // class of one finding with the offset of another: the class's address in the low
    // 48 bits, the offset in the high 16.
    template <class DataT>
    static std::atomic<std::uint64_t>& memoOf()
    {
        static std::atomic<std::uint64_t> memo{0};
        return memo;
    }

    static const std::type_info* typeOf(std::uint64_t memo)
    {
        return reinterpret_cast<const std::type_info*>(
            static_cast<std::uintptr_t>(memo & AddressMask));
    }
    static std::ptrdiff_t offsetOf(std::uint64_t memo)
    {
        return static_cast<std::ptrdiff_t>(memo >> AddressBits);
    }
    static void remember(std::atomic<std::uint64_t>& memo, const std::type_info& type,
                         const void* whole, const void* part)
    {
        const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&type));
        const std::ptrdiff_t offset =
            static_cast<const char*>(part) - static_cast<const char*>(whole);
        // An address or an offset that does not fit is simply not remembered.
        if ((address & ~AddressMask) != 0 || offset < 0 || offset >= (1 << 16))
            return;
        memo.store(address | (static_cast<std::uint64_t>(offset) << AddressBits),
                   std::memory_order_relaxed);
    }

    static constexpr unsigned AddressBits = 48;
    static constexpr std::uint64_t AddressMask = (std::uint64_t(1) << AddressBits) - 1;
};

} // namespace VRK

#endif
