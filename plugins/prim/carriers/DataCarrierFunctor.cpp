#include "plugins/prim/carriers/DataCarrierFunctor.h"

#include "base/data/BaseType.h"

#include <cassert>
#include <sstream>

namespace Prim {

namespace {
const char* const ConstantPort = "constant";
const char* const ObjectPort = "object";
} // namespace

DataCarrierFunctor::DataCarrierFunctor(std::string_view name, std::string_view description,
                                       const std::shared_ptr<VRK::BaseType>& type)
    : VRK::Functor(name, description, type)
{
    setFlag(VRK::FunctorFlags::DataCarrier, true);
}

DataCarrierFunctor::~DataCarrierFunctor() = default;

void DataCarrierFunctor::addCarrierPorts(const std::shared_ptr<VRK::BaseType>& type,
                                         std::string_view constantDescription,
                                         std::string_view objectDescription)
{
    addInputPort(ConstantPort, constantDescription, type, false);
    addOutputPort(ObjectPort, objectDescription, type);
}

bool DataCarrierFunctor::hasBanner() const
{
    return requireInputPort(ConstantPort).hasDataEditor();
}

std::string DataCarrierFunctor::getBanner() const
{
    const VRK::InputPort& constant = requireInputPort(ConstantPort);
    const VRK::DataEditor* editor = constant.getDataEditor();
    assert(editor != 0 && "editor != 0");
    std::ostringstream banner;
    banner << constant.getType()->getName() << '\n';
    editor->toStream(banner, 0);
    return banner.str().substr(0, BannerLength);
}

void DataCarrierFunctor::runImpl()
{
    requireOutputPort(ObjectPort).setDataPtr(requireInputPort(ConstantPort).getDataPtr());
}

} // namespace Prim
