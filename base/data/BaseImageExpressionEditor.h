#ifndef VRK_BASE_DATA_BASEIMAGEEXPRESSIONEDITOR_H
#define VRK_BASE_DATA_BASEIMAGEEXPRESSIONEDITOR_H

#include "base/data/BaseTopLevelImageExpression.h"
#include "base/data/DataEditor.h"

#include <memory>

namespace VRK {

// The editor of formulas, through which the host reads and replaces a formula without
// knowing the library that parsed it.
class BaseImageExpressionEditor : public DataEditor {
public:
    using DataEditor::DataEditor;
    BaseImageExpressionEditor(const BaseImageExpressionEditor&) = default;
    BaseImageExpressionEditor& operator=(const BaseImageExpressionEditor&) = default;
    ~BaseImageExpressionEditor() override;

    virtual void
    setBaseImageExpression(const std::shared_ptr<BaseTopLevelImageExpression>& expression) = 0;
    virtual std::shared_ptr<BaseTopLevelImageExpression> getBaseImageExpression() const = 0;
};

} // namespace VRK

#endif
