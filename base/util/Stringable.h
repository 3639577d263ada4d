#ifndef VRK_BASE_UTIL_STRINGABLE_H
#define VRK_BASE_UTIL_STRINGABLE_H

#include <ostream>
#include <string>

namespace VRK {

// An object that can describe itself as text; `indent` is the nesting depth.
class Stringable {
public:
    virtual ~Stringable();
    virtual void toStream(std::ostream& out, int indent) const;
    std::string toString() const;
};

std::ostream& operator<<(std::ostream& out, const Stringable& object);

// Writes the indentation of one nesting level per step of `indent`.
std::ostream& nestIndent(std::ostream& out, int indent);

} // namespace VRK

#endif
