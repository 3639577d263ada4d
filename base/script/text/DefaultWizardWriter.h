#ifndef VRK_BASE_SCRIPT_TEXT_DEFAULTWIZARDWRITER_H
#define VRK_BASE_SCRIPT_TEXT_DEFAULTWIZARDWRITER_H

#include "base/script/WizardWriter.h"

namespace VRK {

// Writes parameter files that DefaultWizardReader reads: "alias.port = value;" lines.
class DefaultWizardWriter : public WizardWriter {
public:
    DefaultWizardWriter();
    ~DefaultWizardWriter() override;

protected:
    void writeImpl(std::ostream& out, const std::string& filename) override;
};

} // namespace VRK

#endif
