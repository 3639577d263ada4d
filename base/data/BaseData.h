#ifndef VRK_BASE_DATA_BASEDATA_H
#define VRK_BASE_DATA_BASEDATA_H

namespace VRK {

// A value flowing between ports. Immutable once packed; copied through the clone
// factories of the factory farm, keyed by the run-time class.
class BaseData {
public:
    virtual ~BaseData();

    BaseData* shallowClone() const { return shallowCloneImpl(); }
    BaseData* deepClone() const { return deepCloneImpl(); }

protected:
    virtual BaseData* shallowCloneImpl() const;
    virtual BaseData* deepCloneImpl() const;
};

} // namespace VRK

#endif
