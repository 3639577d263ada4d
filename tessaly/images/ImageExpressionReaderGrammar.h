#ifndef VRK_TESSALY_IMAGES_IMAGEEXPRESSIONREADERGRAMMAR_H
#define VRK_TESSALY_IMAGES_IMAGEEXPRESSIONREADERGRAMMAR_H

#include "base/parse/ScannerTypes.h"
#include "tessaly/images/TopLevelImageExpression.h"

#include <cstddef>
#include <memory>

namespace Tessaly {

// The formula language, for one scanner kind. Its rules live in its own translation
// units, which are slow to compile; this header keeps them out of its includers.
//
// Once a construct is committed to (an operator, a keyword, a function name, a table
// identifier, an opening bracket), a missing piece raises a located ParseError whose
// message begins with "Expecting"; nothing is backtracked over.
template <class ScannerT>
class ImageExpressionReaderGrammar {
public:
    ImageExpressionReaderGrammar();
    ~ImageExpressionReaderGrammar();
    // The rules refer to each other and to this grammar's dictionary.
    ImageExpressionReaderGrammar(const ImageExpressionReaderGrammar&) = delete;
    ImageExpressionReaderGrammar& operator=(const ImageExpressionReaderGrammar&) = delete;

    // Reads one formula at the scanner's position, with a fresh dictionary, into
    // `result`; returns the length read, or -1 when the text does not begin with one.
    std::ptrdiff_t parse(const ScannerT& scan, std::shared_ptr<TopLevelImageExpression>& result) const;

private:
    struct Rules;
    std::shared_ptr<ImageExpressionDictionary> dictionary_;
    std::unique_ptr<Rules> rules_;
};

extern template class ImageExpressionReaderGrammar<VRK::ScriptScanner>;
extern template class ImageExpressionReaderGrammar<VRK::PlainScanner>;

} // namespace Tessaly

#endif
