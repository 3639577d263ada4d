#ifndef VRK_BASE_DATA_SINGLEPEERDATAHOLDER_H
#define VRK_BASE_DATA_SINGLEPEERDATAHOLDER_H

#include "base/data/DataHolder.h"

namespace VRK {

// A holder that may be bound to one peer (an output) whose data it pulls.
class SinglePeerDataHolder : public DataHolder {
public:
    using DataHolder::DataHolder;

    void bind(DataHolder* peer) { peer_ = peer; }
    void unbind() { peer_ = nullptr; }
    bool isBound() const { return peer_ != nullptr; }
    DataHolder* getPeer() const { return peer_; }

    // Takes the peer's data, converted to this holder's type where the types differ;
    // holds nothing when the peer holds nothing.
    virtual void pullData();

private:
    DataHolder* peer_ = nullptr;
};

} // namespace VRK

#endif
