#include "plugins/io/PrintStringFunctor.h"

#include "plugins/io/PrintUtils.h"
#include "plugins/prim/values/texts/StringType.h"

namespace Io {

PrintString::PrintString() : Functor("PrintString", "Write a string to the log.", nullptr)
{
    PrintUtils::addPorts(*this, "string", "String to write.", Prim::StringType::getInstance(),
                         "Text written before the string.");
}

PrintString::~PrintString() = default;

void PrintString::runImpl()
{
    PrintUtils::logLabelled(*this,
                            [this] { return getInputPortValue<Prim::StringData>("string"); });
}

} // namespace Io
