#include "base/script/WizardWriter.h"

namespace VRK {

WizardWriter::~WizardWriter() = default;

void WizardWriter::write(std::ostream& out, const std::string& filename)
{
    writeImpl(out, filename);
}

} // namespace VRK
