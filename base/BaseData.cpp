#include "base/BaseData.h"

#include "base/FactoryFarmManager.h"

namespace VRK {

BaseData::~BaseData() = default;

BaseData* BaseData::shallowCloneImpl() const
{
    return FactoryFarmManager::Instance().getDataCloneFactory()->CreateObject(this);
}

BaseData* BaseData::deepCloneImpl() const { return shallowCloneImpl(); }

} // namespace VRK
