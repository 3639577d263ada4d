#ifndef VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONREADER_H
#define VRK_PLUGINS_PRIM_FORMULA_IMAGEEXPRESSIONREADER_H

#include "base/data/DataReader.h"
#include "base/parse/ScannerTypes.h"
#include "tessaly/images/ImageExpressionReaderGrammar.h"

namespace Prim {

class ImageExpressionEditor;

// Reads a formula between "[" and "]"; errors inside keep the formula's own messages.
template <class ScannerT>
class ImageExpressionReader : public VRK::DataReader<ScannerT> {
public:
    explicit ImageExpressionReader(VRK::DataEditor* dataEditor);

    std::ptrdiff_t read(const ScannerT& scan) const override;

private:
    ImageExpressionEditor* editor_;
    Tessaly::ImageExpressionReaderGrammar<ScannerT> grammar_;
};

extern template class ImageExpressionReader<VRK::ScriptScanner>;
extern template class ImageExpressionReader<VRK::PlainScanner>;

} // namespace Prim

#endif
