#ifndef VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONEDITOR_H
#define VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONEDITOR_H

#include "base/data/BaseImageExpressionEditor.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <memory>
#include <string>

namespace Prim {

// Holds one parsed formula. Until one is set, `prepare` supplies the default formula
// that the functor owning the port gave (the image or table it reads first), else 0.
class ImageExpressionEditor : public VRK::BaseImageExpressionEditor {
public:
    using ExpressionPtr = std::shared_ptr<Tessaly::TopLevelImageExpression>;

    ImageExpressionEditor();
    ImageExpressionEditor(const ImageExpressionEditor&) = default;
    ImageExpressionEditor& operator=(const ImageExpressionEditor&) = default;
    ~ImageExpressionEditor() override;

    void prepare() override;
    void packData() override;
    void unpackData(const VRK::BaseData& data) override;
    void setBaseImageExpression(
        const std::shared_ptr<VRK::BaseTopLevelImageExpression>& expression) override;
    std::shared_ptr<VRK::BaseTopLevelImageExpression> getBaseImageExpression() const override;

    const ExpressionPtr& getImageExpression() const { return m_expression; }
    void setImageExpression(const ExpressionPtr& expression);
    std::string getImageExpressionAsString() const;
    // Refuses a text that is not a formula with an IllegalDataException; the formula
    // held before stays.
    void setImageExpressionAsString(const std::string& text);
    // Compiles once per replacement of the formula.
    void compile();
    // The formula that `prepare` sets while none is; it must be one.
    void setDefaultFormula(const std::string& text) { defaultFormula_ = text; }

private:
    ExpressionPtr m_expression;
    std::string defaultFormula_ = "0";
    bool needsCompiling_ = false;
};

} // namespace Prim

#endif
