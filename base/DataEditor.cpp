#include "base/DataEditor.h"

namespace VRK {

DataEditor::DataEditor(const std::string& name, const std::string& description,
                       const std::shared_ptr<BaseType>& type)
    : DataHolder(name, description, type)
{
}

DataEditor::~DataEditor() = default;

void DataEditor::toStream(std::ostream& out, int indent) const
{
    DataHolder::toStream(out, indent);
}

} // namespace VRK
