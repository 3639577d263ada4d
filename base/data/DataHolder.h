#ifndef VRK_BASE_DATA_DATAHOLDER_H
#define VRK_BASE_DATA_DATAHOLDER_H

#include "base/data/BaseData.h"
#include "base/data/Typeable.h"
#include "base/util/Lockable.h"

#include <bitset>
#include <memory>
#include <utility>

namespace VRK {

class Functor;

// Flags of a data holder, by number. The host's meanings of the numbers that plugins set:
using DataHolderFlag = unsigned int;
namespace DataHolderFlags {
// Governs how a functor runs an outside process rather than feeding its computation.
constexpr DataHolderFlag ProcessControl = 7;
} // namespace DataHolderFlags

// Holds at most one data object of its type: the base of ports, editors and viewers.
class DataHolder : public Typeable, public Lockable {
public:
    DataHolder(std::string_view name, std::string_view description,
               const std::shared_ptr<BaseType>& type);
    ~DataHolder() override;

    // Stores a copy of `data`.
    virtual void setData(const BaseData& data);
    virtual void prepare();
    void toStream(std::ostream& out, int indent) const override;

    // Stores `data` itself: data objects are immutable, so holders may share them.
    void setDataPtr(const std::shared_ptr<const BaseData>& data);
    void setDataPtr(std::shared_ptr<const BaseData>&& data) { data_ = std::move(data); }
    const std::shared_ptr<const BaseData>& getDataPtr() const { return data_; }

    void resetData();
    const BaseData& getData() const;
    bool hasData() const { return data_ != nullptr; }

    void setFlag(DataHolderFlag flag, bool value);
    bool getFlag(DataHolderFlag flag) const;

    // The functor this holder belongs to, if any (a port's functor, an editor's port's).
    Functor* getOwner() const { return owner_; }
    virtual void setOwner(Functor* owner) { owner_ = owner; }

private:
    std::shared_ptr<const BaseData> data_;
    std::bitset<32> flags_;
    Functor* owner_ = nullptr;
};

} // namespace VRK

#endif
