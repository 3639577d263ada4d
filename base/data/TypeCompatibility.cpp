#include "base/data/TypeCompatibility.h"

#include "base/data/BaseType.h"
#include "base/data/DataConverter.h"
#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalTypeException.h"
#include "base/plugin/DataConverterName.h"
#include "base/plugin/FactoryFarmManager.h"

namespace VRK {

bool TypeCompatibility::agrees(const std::shared_ptr<BaseType>& source,
                               const std::shared_ptr<BaseType>& target)
{
    return !source || !target || source->isKindOf(target);
}

bool TypeCompatibility::isCompatible(const std::shared_ptr<BaseType>& source,
                                     const std::shared_ptr<BaseType>& target)
{
    return agrees(source, target) || findConverter(source, target) != nullptr;
}

std::shared_ptr<DataConverter> TypeCompatibility::findConverter(
    const std::shared_ptr<BaseType>& source, const std::shared_ptr<BaseType>& target)
{
    // Data of a type is data of its ancestors too, so their converters serve it: an Int
    // goes into a Bool port as the Double it also is. The nearest ancestor's wins.
    auto factory = FactoryFarmManager::Instance().getDataConverterFactory();
    for (auto type = source; type; type = type->getParent()) {
        const DataConverterName name(type->getName(), target->getName());
        if (factory->isRegistered(name))
            return factory->create(name);
    }
    return nullptr;
}

std::shared_ptr<const BaseData>
TypeCompatibility::convert(const std::shared_ptr<const BaseData>& data,
                           const std::shared_ptr<BaseType>& source,
                           const std::shared_ptr<BaseType>& target)
{
    auto converter = findConverter(source, target);
    if (!converter)
        ExceptionUtils::raise<IllegalTypeException>("No converter turns \"" + source->getName()
                                                    + "\" data into \"" + target->getName()
                                                    + "\" data.");
    return std::shared_ptr<const BaseData>(converter->convert(*data));
}

} // namespace VRK
