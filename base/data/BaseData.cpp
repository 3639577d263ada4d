#include "base/data/BaseData.h"

#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

BaseData::~BaseData() = default;

BaseData* BaseData::shallowCloneImpl() const
{
    return FactoryFarmManager::Instance().getDataCloneFactory()->CreateObject(this);
}

BaseData* BaseData::deepCloneImpl() const { return shallowCloneImpl(); }

} // namespace VRK
