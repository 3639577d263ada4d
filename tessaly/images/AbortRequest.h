#ifndef VRK_TESSALY_IMAGES_ABORTREQUEST_H
#define VRK_TESSALY_IMAGES_ABORTREQUEST_H

namespace Tessaly {

// Thrown by "abort" deep inside a tree; the top-level expression, which knows the
// formula's text, turns it into the error that the modeller sees.
struct AbortRequest {};

} // namespace Tessaly

#endif
