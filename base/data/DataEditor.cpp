#include "base/data/DataEditor.h"

#include "base/data/BaseType.h"
#include "base/data/DataWriter.h"
#include "base/plugin/FactoryFarmManager.h"

#include <memory>

namespace VRK {

DataEditor::DataEditor(std::string_view name, std::string_view description,
                       const std::shared_ptr<BaseType>& type)
    : DataHolder(name, description, type)
{
}

DataEditor::~DataEditor() = default;

// The value in its script form when a writer of the type is registered; editors that
// show their value otherwise override this.
void DataEditor::toStream(std::ostream& out, int indent) const
{
    auto writers = FactoryFarmManager::Instance().getDataWriterFactory();
    if (!getType() || !writers->isRegistered(getType()->getName())) {
        DataHolder::toStream(out, indent);
        return;
    }
    std::unique_ptr<DataWriter> writer(writers->create(getType()->getName(), this));
    nestIndent(out, indent);
    writer->write(out, 0);
}

} // namespace VRK
