#ifndef VRK_BASE_DATA_DATAWRITER_H
#define VRK_BASE_DATA_DATAWRITER_H

#include <ostream>

namespace VRK {

class DataEditor;

// Prints the value of an editor in its script form.
class DataWriter {
public:
    explicit DataWriter(const DataEditor* dataEditor);
    virtual ~DataWriter();

    virtual std::ostream& write(std::ostream& out, int indent) const = 0;

protected:
    const DataEditor* getDataEditor() const { return dataEditor_; }

private:
    const DataEditor* dataEditor_;
};

} // namespace VRK

#endif
