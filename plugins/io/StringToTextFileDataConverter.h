#ifndef VRK_PLUGINS_IO_STRINGTOTEXTFILEDATACONVERTER_H
#define VRK_PLUGINS_IO_STRINGTOTEXTFILEDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Io {

// Names a text file by a string that another functor built (a numbered name, say). The
// name stays relative, to be resolved against the work directory of the functor that
// receives it.
class StringToTextFileDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Io

#endif
