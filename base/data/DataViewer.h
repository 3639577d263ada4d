#ifndef VRK_BASE_DATA_DATAVIEWER_H
#define VRK_BASE_DATA_DATAVIEWER_H

#include "base/data/DataHolder.h"

namespace VRK {

// Inspects a data object without changing it.
class DataViewer : public DataHolder {
public:
    DataViewer(std::string_view name, std::string_view description,
               const std::shared_ptr<BaseType>& type);
    DataViewer(const DataViewer&) = default;
    DataViewer& operator=(const DataViewer&) = default;
    ~DataViewer() override;
};

} // namespace VRK

#endif
