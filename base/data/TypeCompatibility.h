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
    // Same type, an ancestor of the source, or a registered converter.
    // Whether data of `source` serve `target` as they are (an unknown type agrees).
    static bool agrees(const std::shared_ptr<BaseType>& source,
                       const std::shared_ptr<BaseType>& target);
    static bool isCompatible(const std::shared_ptr<BaseType>& source,
                             const std::shared_ptr<BaseType>& target);

    // The converter from source, or else from its nearest ancestor that has one, to
    // target; none when no converter is registered.
    static std::shared_ptr<DataConverter> findConverter(const std::shared_ptr<BaseType>& source,
                                                        const std::shared_ptr<BaseType>& target);

    // `data` of type `source` made fit for `target`: itself when the types agree,
    // otherwise a converted copy. Throws an IllegalTypeException when it cannot.
    static std::shared_ptr<const BaseData> adapt(const std::shared_ptr<const BaseData>& data,
                                                 const std::shared_ptr<BaseType>& source,
                                                 const std::shared_ptr<BaseType>& target);
};

} // namespace VRK

#endif
