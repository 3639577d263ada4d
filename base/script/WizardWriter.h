#ifndef VRK_BASE_SCRIPT_WIZARDWRITER_H
#define VRK_BASE_SCRIPT_WIZARDWRITER_H

#include "base/script/WizardParameter.h"

#include <ostream>
#include <string>
#include <vector>

namespace VRK {

// Writes a parameter file from the parameters given to it.
class WizardWriter {
public:
    virtual ~WizardWriter();
    void addParameter(const WizardParameter& parameter) { parameters_.push_back(parameter); }
    void write(std::ostream& out, const std::string& filename);

protected:
    virtual void writeImpl(std::ostream& out, const std::string& filename) = 0;
    const std::vector<WizardParameter>& getParameters() const { return parameters_; }

private:
    std::vector<WizardParameter> parameters_;
};

} // namespace VRK

#endif
