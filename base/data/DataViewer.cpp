#include "base/data/DataViewer.h"

namespace VRK {

DataViewer::DataViewer(std::string_view name, std::string_view description,
                       const std::shared_ptr<BaseType>& type)
    : DataHolder(name, description, type)
{
}

DataViewer::~DataViewer() = default;

} // namespace VRK
