#ifndef VRK_BASE_DATA_PRIMDATA_H
#define VRK_BASE_DATA_PRIMDATA_H

#include "base/data/Data.h"

namespace VRK {

// Data of a primitive value.
template <class T, class ViewerT, class EditorT>
class PrimData : public Data<T, ViewerT, EditorT> {
public:
    using Data<T, ViewerT, EditorT>::Data;
};

} // namespace VRK

#endif
