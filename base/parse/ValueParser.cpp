#include "base/parse/ValueParser.h"

#include "base/data/BaseType.h"
#include "base/data/DataEditor.h"
#include "base/data/DataReader.h"
#include "base/error/ExceptionUtils.h"
#include "base/parse/ParseError.h"
#include "base/parse/PlainTextOrigin.h"
#include "base/parse/ScannerTypes.h"
#include "base/plugin/FactoryFarmManager.h"

#include <cassert>
#include <memory>

namespace VRK {

void ValueParser::read(DataEditor* editor, const std::string& text)
{
    assert(editor != 0 && "a value is read into an editor");
    assert(editor->getType() != 0 && "the editor knows the type of its values");
    read(editor, editor->getType()->getName(), text);
}

void ValueParser::read(DataEditor* editor, const std::string& typeName, const std::string& text)
{
    assert(editor != 0 && "a value is read into an editor");
    auto factory =
        FactoryFarmManager::Instance().getDataReaderFactory<PlainScanner>(PlainScannerName);
    std::unique_ptr<DataReader<PlainScanner>> reader(factory->create(typeName, editor));
    assert(reader != 0 && "the reader factory makes a reader or throws");

    const char* first = text.data();
    const char* const last = first + text.size();
    // Marked before the scanner exists: constructing it skips leading white space.
    const PlainTextOrigin origin(first);
    const PlainScanner scan(first, last);
    reader->read(scan);
    scan.skip(scan);
    if (scan.first != last) {
        ExceptionUtils::raise(
            ParseError("Unexpected text after the value.", PlainTextOrigin::positionOf(scan.first)));
    }
}

} // namespace VRK
