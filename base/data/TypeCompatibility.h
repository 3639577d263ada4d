#ifndef VRK_BASE_DATA_TYPECOMPATIBILITY_H
#define VRK_BASE_DATA_TYPECOMPATIBILITY_H

#include "base/data/BaseData.h"

#include <memory>

namespace VRK {

class BaseType;
class DataConverter;

// Whether data of one type may flow into a holder of another, and how.
class TypeCompatibility {
public:
    // Whether data of `source` serve `target` as they are (an unknown type agrees).
    static bool agrees(const std::shared_ptr<BaseType>& source,
                       const std::shared_ptr<BaseType>& target);
    // Same type, an ancestor of the source, or a registered converter.
    static bool isCompatible(const std::shared_ptr<BaseType>& source,
                             const std::shared_ptr<BaseType>& target);

    // The converter from source, or else from its nearest ancestor that has one, to
    // target; none when no converter is registered.
    static std::shared_ptr<DataConverter> findConverter(const std::shared_ptr<BaseType>& source,
                                                        const std::shared_ptr<BaseType>& target);

    // A converted copy of `data`, of type `source`, for `target`, whose types do not
    // agree. Throws an IllegalTypeException when no converter serves.
    static std::shared_ptr<const BaseData> convert(const std::shared_ptr<const BaseData>& data,
                                                   const std::shared_ptr<BaseType>& source,
                                                   const std::shared_ptr<BaseType>& target);
};

} // namespace VRK

#endif
