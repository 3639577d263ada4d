#ifndef VRK_PLUGINS_PRIM_CARRIERS_DATACARRIERFUNCTOR_H
#define VRK_PLUGINS_PRIM_CARRIERS_DATACARRIERFUNCTOR_H

#include "base/graph/Functor.h"

#include <memory>
#include <string>
#include <string_view>

namespace Prim {

// A constant typed in once and handed on through "object", so that one value can feed
// many functors and be edited in one place.
class DataCarrierFunctor : public VRK::Functor {
public:
    DataCarrierFunctor(const DataCarrierFunctor&) = default;
    DataCarrierFunctor& operator=(const DataCarrierFunctor&) = default;
    ~DataCarrierFunctor() override;

    // The box text: the type's name, a line break and the constant, cut to 50 characters.
    bool hasBanner() const override;
    std::string getBanner() const override;
    // Hands on the very data object of "constant": data is immutable, so no copy.
    void runImpl() override;

    static constexpr size_t BannerLength = 50;

protected:
    DataCarrierFunctor(std::string_view name, std::string_view description,
                       const std::shared_ptr<VRK::BaseType>& type);

    // Declares "constant" and "object", both of the carried type.
    void addCarrierPorts(const std::shared_ptr<VRK::BaseType>& type,
                         std::string_view constantDescription, std::string_view objectDescription);
};

} // namespace Prim

#endif
