#include "base/script/ScriptValueReaders.h"

#include "base/data/BaseType.h"
#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

ScriptValueReaders::ScriptValueReaders()
    : factory_(
        FactoryFarmManager::Instance().getDataReaderFactory<ScriptScanner>(ScriptScannerName))
{
}

std::unique_ptr<DataReader<ScriptScanner>> ScriptValueReaders::create(const BaseType& type,
                                                                      DataEditor& editor)
{
    auto known = creators_.find(&type);
    if (known == creators_.end())
        known = creators_.emplace(&type, factory_->findCreator(type.getName())).first;
    if (!known->second)
        return nullptr;
    return std::unique_ptr<DataReader<ScriptScanner>>(known->second(&editor));
}

} // namespace VRK
