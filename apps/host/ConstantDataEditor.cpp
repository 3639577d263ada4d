#include "apps/host/ConstantDataEditor.h"

#include <cassert>

ConstantDataEditor::ConstantDataEditor(const std::shared_ptr<VRK::BaseType>& type,
                                       const std::shared_ptr<const VRK::BaseData>& data)
    : VRK::DataEditor("constant", "Data given by the program that runs the script.", type)
{
    assert(data != 0 && "data != 0");
    setDataPtr(data);
}

ConstantDataEditor::~ConstantDataEditor() = default;

// The object is held packed from the start, and data objects never change.
void ConstantDataEditor::packData() {}

void ConstantDataEditor::unpackData(const VRK::BaseData& data)
{
    setDataPtr(std::shared_ptr<const VRK::BaseData>(data.shallowClone()));
}
