#include "tessaly/images/DefaultImageExpressionReader.h"

#include "base/error/ExceptionUtils.h"
#include "base/parse/ParseError.h"
#include "base/parse/ScannerTypes.h"
#include "base/parse/ScriptTextScanner.h"
#include "tessaly/images/ImageExpressionReaderGrammar.h"

#include <iterator>
#include <string>

namespace Tessaly {

std::shared_ptr<TopLevelImageExpression> DefaultImageExpressionReader::read(std::istream& in,
                                                                            const std::string& filename)
{
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const VRK::ScriptTextScanner scanner(text, filename);
    const VRK::ScriptScanner& scan = scanner.getScanner();
    const ImageExpressionReaderGrammar<VRK::ScriptScanner> grammar;
    std::shared_ptr<TopLevelImageExpression> expression;
    if (grammar.parse(scan, expression) < 0 || !scan.at_end()) {
        const auto& position = scan.first.get_position();
        VRK::ExceptionUtils::raise(VRK::ParseError(
            "Expecting an operator or the end of the image expression.",
            VRK::ParseError::Position(position.file, position.line, position.column)));
    }
    return expression;
}

} // namespace Tessaly
