#ifndef VRK_BASE_SCRIPT_TEXT_DEFAULTWIZARDREADER_H
#define VRK_BASE_SCRIPT_TEXT_DEFAULTWIZARDREADER_H

#include "base/script/WizardReader.h"

namespace VRK {

// Reads parameter files: one "alias.port = value;" a statement, white space and
// comments ("//", "/* */") between them, as in text scripts. A value runs up to its
// ";" on the same line; double-quoted texts and bracketed expressions in it may hold
// ";" and line breaks. It is kept as text, to be read later by the reader of its
// port's type.
class DefaultWizardReader : public WizardReader {
public:
    DefaultWizardReader();
    ~DefaultWizardReader() override;

protected:
    // Throws a ParseError with file, line and column at the first mistake.
    void readImpl(std::istream& in, const std::string& filename) override;
};

} // namespace VRK

#endif
