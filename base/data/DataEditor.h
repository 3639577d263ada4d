#ifndef VRK_BASE_DATA_DATAEDITOR_H
#define VRK_BASE_DATA_DATAEDITOR_H

#include "base/data/DataHolder.h"

namespace VRK {

// Builds and changes a value: a working copy in the editor, packed on demand into the
// immutable data object that the holder then carries.
class DataEditor : public DataHolder {
public:
    DataEditor(std::string_view name, std::string_view description,
               const std::shared_ptr<BaseType>& type);
    DataEditor(const DataEditor&) = default;
    DataEditor& operator=(const DataEditor&) = default;
    ~DataEditor() override;

    void toStream(std::ostream& out, int indent) const override;

    // Turns the working value into the held data object.
    virtual void packData() = 0;
    // Takes the working value from a data object of this editor's type.
    virtual void unpackData(const BaseData& data) = 0;
};

} // namespace VRK

#endif
