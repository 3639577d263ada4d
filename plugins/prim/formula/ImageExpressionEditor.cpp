#include "plugins/prim/formula/ImageExpressionEditor.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "base/graph/Functor.h"
#include "base/parse/ParseError.h"
#include "plugins/prim/formula/ImageExpressionType.h"
#include "plugins/prim/values/DataCast.h"
#include "tessaly/images/CompoundNodes.h"
#include "tessaly/images/DefaultImageExpressionReader.h"
#include "tessaly/images/DefaultImageExpressionWriter.h"
#include "tessaly/images/FunctionNodes.h"
#include "tessaly/images/LeafNodes.h"
#include "tessaly/images/TableNodes.h"

#include <cassert>
#include <sstream>

namespace Prim {

namespace {

namespace E = Tessaly::Nodes;

} // namespace

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
        setImageExpression(getDefaultExpression());
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

// The named variants read the port named "image" or "table"; the index of the first
// entry of a fresh dictionary is 1.
ImageExpressionEditor::ExpressionPtr ImageExpressionEditor::getDefaultExpression() const
{
    const VRK::Functor* functor = getOwner();
    assert(functor != 0 && "functor != 0");
    const auto dictionary = std::make_shared<Tessaly::ImageExpressionDictionary>();
    assert(dictionary != 0 && "dictionary != 0");
    const Tessaly::ImageExpressionDictionary::Position here;
    const std::string& name = functor->getName();
    Tessaly::ImageExpressionPtr root;
    if (name == "CalculateLookupTable" || name == "CalculateLookupTable2") {
        if (name == "CalculateLookupTable")
            dictionary->addTableId(1, here);
        else
            dictionary->addTableName("table", here);
        root = std::make_shared<E::TableValue>(1, std::make_shared<E::Line>());
    } else if (name == "CalculateMap" || name == "CalculateCategoricalMap") {
        dictionary->addImageId(1, here);
        root = std::make_shared<E::ImageValue>(1);
    } else if (name == "CalculateMap2" || name == "CalculateCategoricalMap2") {
        dictionary->addImageName("image", here);
        root = std::make_shared<E::ImageValue>(1);
    } else {
        root = std::make_shared<E::Value>(0.0);
    }
    assert(root != 0 && "expression != 0");
    return std::make_shared<Tessaly::TopLevelImageExpression>(root, dictionary, false);
}

} // namespace Prim
