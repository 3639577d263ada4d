#include "plugins/prim/formula/ImageExpressionEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/parse/ParseError.h"
#include "plugins/prim/formula/ImageExpressionType.h"
#include "plugins/prim/values/DataCast.h"
#include "tessaly/images/DefaultImageExpressionReader.h"
#include "tessaly/images/DefaultImageExpressionWriter.h"

#include <cassert>
#include <sstream>

namespace Prim {

ImageExpressionEditor::ImageExpressionEditor()
    : VRK::BaseImageExpressionEditor("ImageExpressionEditor",
                                     "Editor used to edit/create image expressions.",
                                     ImageExpressionType::getInstance())
{
}

ImageExpressionEditor::~ImageExpressionEditor() = default;

void ImageExpressionEditor::prepare()
{
    if (!m_expression)
        setImageExpressionAsString(defaultFormula_);
}

void ImageExpressionEditor::packData()
{
    assert(m_expression != 0 && "m_expression != 0");
    assert(ImageExpressionType::getInstance() != 0 && "instance != 0");
    setDataPtr(std::make_shared<const ImageExpressionData>(m_expression));
}

void ImageExpressionEditor::unpackData(const VRK::BaseData& data)
{
    setImageExpression(DataCast::as<ImageExpressionData>(data).getValue());
}

void ImageExpressionEditor::setBaseImageExpression(
    const std::shared_ptr<VRK::BaseTopLevelImageExpression>& expression)
{
    const auto concrete = std::dynamic_pointer_cast<Tessaly::TopLevelImageExpression>(expression);
    assert(concrete != 0 && "expression != 0");
    setImageExpression(concrete);
}

std::shared_ptr<VRK::BaseTopLevelImageExpression> ImageExpressionEditor::getBaseImageExpression() const
{
    assert(m_expression != 0 && "m_expression != 0");
    return m_expression;
}

void ImageExpressionEditor::setImageExpression(const ExpressionPtr& expression)
{
    assert(expression != 0 && "expression != 0");
    m_expression = expression;
    needsCompiling_ = true;
}

std::string ImageExpressionEditor::getImageExpressionAsString() const
{
    assert(m_expression != 0 && "m_expression != 0");
    std::ostringstream out;
    Tessaly::DefaultImageExpressionWriter::write(*m_expression, out, "", 0);
    return out.str();
}

void ImageExpressionEditor::setImageExpressionAsString(const std::string& text)
{
    std::istringstream in(text);
    ExpressionPtr expression;
    try {
        expression = Tessaly::DefaultImageExpressionReader::read(in, "expression");
    } catch (const VRK::ParseError&) {
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
            "Unable to parse a valid image calculation expression.");
    }
    setImageExpression(expression);
}

void ImageExpressionEditor::compile()
{
    if (!needsCompiling_)
        return;
    assert(m_expression != 0 && "m_expression != 0");
    m_expression->compile();
    needsCompiling_ = false;
}

} // namespace Prim
