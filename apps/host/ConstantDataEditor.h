#ifndef VRK_APPS_HOST_CONSTANTDATAEDITOR_H
#define VRK_APPS_HOST_CONSTANTDATAEDITOR_H

#include "base/data/DataEditor.h"

#include <memory>

// The editor of an input that a program gave a data object of its own (a map made in
// memory) instead of a value typed in: it packs that same object on every run.
class ConstantDataEditor : public VRK::DataEditor {
public:
    ConstantDataEditor(const std::shared_ptr<VRK::BaseType>& type,
                       const std::shared_ptr<const VRK::BaseData>& data);
    ~ConstantDataEditor() override;

    void packData() override;
    void unpackData(const VRK::BaseData& data) override;
};

#endif
