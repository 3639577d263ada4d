#ifndef VRK_BASE_SCRIPT_WIZARDREADER_H
#define VRK_BASE_SCRIPT_WIZARDREADER_H

#include "base/script/WizardParameter.h"

#include <istream>
#include <string>
#include <vector>

namespace VRK {

// Reads a parameter file: the modeller's values for ports of a script.
class WizardReader {
public:
    virtual ~WizardReader();
    void read(std::istream& in, const std::string& filename);
    const std::vector<WizardParameter>& getParameters() const { return parameters_; }

protected:
    virtual void readImpl(std::istream& in, const std::string& filename) = 0;
    void addParameter(const WizardParameter& parameter) { parameters_.push_back(parameter); }

private:
    std::vector<WizardParameter> parameters_;
};

} // namespace VRK

#endif
