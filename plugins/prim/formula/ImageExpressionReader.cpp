#include "plugins/prim/formula/ImageExpressionReader.h"

#include "base/parse/TransducedAssertiveParser.h"
#include "plugins/prim/formula/ImageExpressionEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

#include <boost/spirit/include/classic_functor_parser.hpp>

namespace Prim {

namespace {

// The grammar as a parser of the enclosing rule.
template <class ScannerT>
struct FormulaParser {
    using result_t = boost::spirit::classic::nil_t;
    std::ptrdiff_t operator()(const ScannerT& scan, result_t&) const
    {
        std::shared_ptr<Tessaly::TopLevelImageExpression> expression;
        const std::ptrdiff_t length = grammar->parse(scan, expression);
        if (length >= 0)
            editor->setImageExpression(expression);
        return length;
    }
    const Tessaly::ImageExpressionReaderGrammar<ScannerT>* grammar;
    ImageExpressionEditor* editor;
};

} // namespace

template <class ScannerT>
ImageExpressionReader<ScannerT>::ImageExpressionReader(VRK::DataEditor* dataEditor)
    : VRK::DataReader<ScannerT>(dataEditor),
      editor_(&PrimEditorUtils::editorOf<ImageExpressionEditor>(dataEditor))
{
}

template <class ScannerT>
std::ptrdiff_t ImageExpressionReader<ScannerT>::read(const ScannerT& scan) const
{
    using namespace boost::spirit::classic;
    const functor_parser<FormulaParser<ScannerT>> formula(FormulaParser<ScannerT>{&grammar_, editor_});
    return VRK::Spirit::transduced_assertive_p(
               ch_p('[') >> formula >> ']',
               "Expecting an image expression enclosed by '[' and ']'.")
        .parse(scan)
        .length();
}

template class ImageExpressionReader<VRK::ScriptScanner>;
template class ImageExpressionReader<VRK::PlainScanner>;

} // namespace Prim
