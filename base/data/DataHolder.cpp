#include "base/data/DataHolder.h"

#include "base/data/BaseType.h"

#include <cassert>

namespace VRK {

DataHolder::DataHolder(std::string_view name, std::string_view description,
                       const std::shared_ptr<BaseType>& type)
    : Typeable(name, description, type)
{
}

DataHolder::~DataHolder() = default;

void DataHolder::setData(const BaseData& data)
{
    data_.reset(data.shallowClone());
}

void DataHolder::prepare() {}

void DataHolder::toStream(std::ostream& out, int indent) const
{
    nestIndent(out, indent) << getName();
    if (getType())
        out << " (" << getType()->getName() << ")";
}

void DataHolder::setDataPtr(const std::shared_ptr<const BaseData>& data) { data_ = data; }

void DataHolder::resetData() { data_.reset(); }

const BaseData& DataHolder::getData() const
{
    assert(data_ != nullptr && "hasData()");
    return *data_;
}

void DataHolder::setFlag(DataHolderFlag flag, bool value)
{
    assert(flag < flags_.size() && "flag < 32");
    flags_.set(flag, value);
}

bool DataHolder::getFlag(DataHolderFlag flag) const
{
    assert(flag < flags_.size() && "flag < 32");
    return flags_.test(flag);
}

} // namespace VRK
