#include "base/data/SinglePeerDataHolder.h"

#include "base/data/BaseType.h"
#include "base/data/TypeCompatibility.h"

#include <cassert>

namespace VRK {

void SinglePeerDataHolder::pullData()
{
    assert(peer_ != 0 && "isBound()");
    if (!peer_->hasData()) {
        resetData();
        return;
    }
    setDataPtr(TypeCompatibility::adapt(peer_->getDataPtr(), peer_->getType(), getType()));
}

} // namespace VRK
