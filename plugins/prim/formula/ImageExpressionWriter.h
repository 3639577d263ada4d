#ifndef VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONWRITER_H
#define VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONWRITER_H

#include "base/data/DataWriter.h"

namespace Prim {

class ImageExpressionEditor;

// Prints the formula on a line of its own, one level deeper than `indent`, between a
// "[" line and a "]" at `indent`.
class ImageExpressionWriter : public VRK::DataWriter {
public:
    explicit ImageExpressionWriter(const VRK::DataEditor* dataEditor);

    std::ostream& write(std::ostream& out, int indent) const override;

private:
    const ImageExpressionEditor* editor_;
};

} // namespace Prim

#endif
