#include "plugins/io/PrintValueFunctor.h"

#include "plugins/io/PrintUtils.h"
#include "plugins/prim/values/numbers/DoubleType.h"

#include <cassert>
#include <charconv>

namespace Io {

PrintValue::PrintValue() : Functor("PrintValue", "Write a value to the log.", nullptr)
{
    PrintUtils::addPorts(*this, "value", "Value to write.", Prim::DoubleType::getInstance(),
                         "Text written before the value.");
}

PrintValue::~PrintValue() = default;

void PrintValue::runImpl()
{
    PrintUtils::logLabelled(
        *this, [this] { return format(getInputPortValue<Prim::DoubleData>("value")); });
}

std::string PrintValue::format(double value)
{
    char text[32];
    const std::to_chars_result written = std::to_chars(text, text + sizeof text, value);
    assert(written.ec == std::errc() && "written.ec == std::errc()");
    return std::string(text, written.ptr);
}

} // namespace Io
