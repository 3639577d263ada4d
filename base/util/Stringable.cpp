#include "base/util/Stringable.h"

#include <sstream>

namespace VRK {

Stringable::~Stringable() = default;

void Stringable::toStream(std::ostream&, int) const {}

std::string Stringable::toString() const
{
    std::ostringstream out;
    toStream(out, 0);
    return out.str();
}

std::ostream& operator<<(std::ostream& out, const Stringable& object)
{
    object.toStream(out, 0);
    return out;
}

std::ostream& nestIndent(std::ostream& out, int indent)
{
    for (int i = 0; i < indent; ++i)
        out << "    ";
    return out;
}

} // namespace VRK
