#ifndef VRK_BASE_DATA_DATACONVERTER_H
#define VRK_BASE_DATA_DATACONVERTER_H

#include "base/data/BaseData.h"

#include <string>

namespace VRK {

// Turns data of one type into new data of another; the source is left as it is.
class DataConverter {
public:
    virtual ~DataConverter();
    // Returns a new object owned by the caller; throws an Exception when it cannot.
    virtual BaseData* convert(const BaseData& source) const = 0;

protected:
    // A conversion that cannot be made: logged at ".debug" as the message and the call
    // trace, without the exception's name, then thrown as an Exception.
    [[noreturn]] static void raiseFailure(const std::string& message);
};

} // namespace VRK

#endif
