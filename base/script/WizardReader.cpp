#include "base/script/WizardReader.h"

namespace VRK {

WizardReader::~WizardReader() = default;

void WizardReader::read(std::istream& in, const std::string& filename)
{
    parameters_.clear();
    readImpl(in, filename);
}

} // namespace VRK
