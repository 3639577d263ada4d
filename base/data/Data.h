#ifndef VRK_BASE_DATA_DATA_H
#define VRK_BASE_DATA_DATA_H

#include "base/data/BaseData.h"

namespace VRK {

// Data holding one value of T, tied to the viewer and editor classes of its type.
// BaseData is a virtual base so that composite data (an integer that is also a real)
// stays one BaseData.
template <class T, class ViewerT, class EditorT>
class Data : public virtual BaseData {
public:
    using ValueType = T;
    using ViewerType = ViewerT;
    using EditorType = EditorT;

    Data() : value_() {}
    explicit Data(const T& value) : value_(value) {}

    const T& getValue() const { return value_; }

private:
    T value_;
};

} // namespace VRK

#endif
