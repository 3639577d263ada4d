#include "plugins/prim/values/numbers/IntSetWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/IntSetEditor.h"

#include <set>

namespace Prim {

IntSetWriter::IntSetWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<IntSetEditor>(dataEditor))
{
}

std::ostream& IntSetWriter::write(std::ostream& out, int) const
{
    const std::set<int>& values = editor_->getInts();
    if (values.empty())
        return out << "[]";
    const char* separator = "[ ";
    for (int value : values) {
        out << separator << value;
        separator = ", ";
    }
    return out << " ]";
}

} // namespace Prim
