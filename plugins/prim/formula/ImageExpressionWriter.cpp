#include "plugins/prim/formula/ImageExpressionWriter.h"

#include "base/util/Stringable.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "tessaly/images/DefaultImageExpressionWriter.h"

#include <cassert>

namespace Prim {

ImageExpressionWriter::ImageExpressionWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor),
      editor_(&PrimEditorUtils::editorOf<ImageExpressionEditor>(dataEditor))
{
}

std::ostream& ImageExpressionWriter::write(std::ostream& out, int indent) const
{
    const auto& expression = editor_->getImageExpression();
    assert(expression != 0 && "expression != 0");
    out << "[\n";
    Tessaly::DefaultImageExpressionWriter::write(*expression, out, "", indent + 1);
    out << '\n';
    return VRK::nestIndent(out, indent) << ']';
}

} // namespace Prim
