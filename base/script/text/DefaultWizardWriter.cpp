#include "base/script/text/DefaultWizardWriter.h"

namespace VRK {

DefaultWizardWriter::DefaultWizardWriter() = default;

DefaultWizardWriter::~DefaultWizardWriter() = default;

void DefaultWizardWriter::writeImpl(std::ostream& out, const std::string&)
{
    for (const auto& parameter : getParameters())
        out << parameter.alias << '.' << parameter.port << " = " << parameter.value << ";\n";
}

} // namespace VRK
