#ifndef VRK_BASE_DATA_DATACONVERTER_H
#define VRK_BASE_DATA_DATACONVERTER_H

#include "base/data/BaseData.h"

namespace VRK {

// Turns data of one type into new data of another; the source is left as it is.
class DataConverter {
public:
    virtual ~DataConverter();
    // Returns a new object owned by the caller; throws an Exception when it cannot.
    virtual BaseData* convert(const BaseData& source) const = 0;
};

} // namespace VRK

#endif
