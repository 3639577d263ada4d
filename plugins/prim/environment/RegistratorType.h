#ifndef VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORTYPE_H
#define VRK_PLUGINS_PRIM_ENVIRONMENT_REGISTRATORTYPE_H

#include "base/data/BaseType.h"
#include "base/graph/Functor.h"
#include "base/util/Singleton.h"

#include <string>

namespace Prim {

// The type of the functors that register one kind of value under a number or a name; no
// data has it. The words of the kind ("numbered lookup table") make both the type's name
// ("NumberedLookupTableRegistrator") and its description.
class RegistratorType : public VRK::BaseType {
public:
    ~RegistratorType() override;

    // Whether `functor`, which has a type, is a registrator of this type. Types are told
    // apart by name, the way the catalogue knows them.
    bool registers(const VRK::Functor& functor) const;
    // Whether `functor` has a type and one of RegistratorTypesT registers it.
    template <class... RegistratorTypesT>
    static bool anyRegisters(const VRK::Functor& functor)
    {
        return functor.getType() != 0
               && (VRK::Singleton<RegistratorTypesT>::getInstance()->registers(functor) || ...);
    }

protected:
    explicit RegistratorType(const std::string& words);
};

} // namespace Prim

#endif
