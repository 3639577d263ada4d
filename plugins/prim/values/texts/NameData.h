#ifndef VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEDATA_H
#define VRK_PLUGINS_PRIM_VALUES_TEXTS_NAMEDATA_H

#include "plugins/prim/values/texts/NameEditor.h"
#include "plugins/prim/values/texts/StringData.h"

namespace Prim {

// A name is a string, so a name feeds any String input unchanged.
class NameData : public StringData {
public:
    using EditorType = NameEditor;

    explicit NameData(const std::string& name = "name");
    NameData(const NameData&) = default;
    ~NameData() override;
};

} // namespace Prim

#endif
