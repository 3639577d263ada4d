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
    // Data pass along every binding at every pass: those that need no converter pass
    // without copies of their pointer.
    if (TypeCompatibility::agrees(peer_->getType(), getType()))
        setDataPtr(peer_->getDataPtr());
    else
        setDataPtr(TypeCompatibility::convert(peer_->getDataPtr(), peer_->getType(), getType()));
}

} // namespace VRK
