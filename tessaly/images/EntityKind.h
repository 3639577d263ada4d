#ifndef VRK_TESSALY_IMAGES_ENTITYKIND_H
#define VRK_TESSALY_IMAGES_ENTITYKIND_H

namespace Tessaly {

// The three kinds of things that a formula names and that its dictionary numbers.
enum class EntityKind { Image, Table, Value };

} // namespace Tessaly

#endif
