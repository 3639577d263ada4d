#include "base/data/DataViewer.h"

namespace VRK {

DataViewer::DataViewer(const std::string& name, const std::string& description,
                       const std::shared_ptr<BaseType>& type)
    : DataHolder(name, description, type)
{
}

DataViewer::~DataViewer() = default;

} // namespace VRK
