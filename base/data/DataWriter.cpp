#include "base/data/DataWriter.h"

#include <cassert>

namespace VRK {

DataWriter::DataWriter(const DataEditor* dataEditor) : dataEditor_(dataEditor)
{
    assert(dataEditor != 0 && "dataEditor != 0");
}

DataWriter::~DataWriter() = default;

} // namespace VRK
