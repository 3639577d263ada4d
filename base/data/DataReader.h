#ifndef VRK_BASE_DATA_DATAREADER_H
#define VRK_BASE_DATA_DATAREADER_H

#include <cassert>
#include <cstddef>

namespace VRK {

class DataEditor;

// Reads one value in its script syntax at a scanner's position and hands it to the
// editor. ScannerT is one of the scanners of ScannerTypes.h.
template <class ScannerT>
class DataReader {
public:
    explicit DataReader(DataEditor* dataEditor) : dataEditor_(dataEditor)
    {
        assert(dataEditor != 0 && "dataEditor != 0");
    }
    virtual ~DataReader() = default;

    // Consumes the value and returns the length matched; throws a ParseError with the
    // position when the text does not read or the editor refuses the value.
    virtual std::ptrdiff_t read(const ScannerT& scan) const = 0;

    DataEditor* getDataEditor() const { return dataEditor_; }

private:
    DataEditor* dataEditor_;
};

} // namespace VRK

#endif
