#ifndef VRK_BASE_GRAPH_OUTPUTPORT_H
#define VRK_BASE_GRAPH_OUTPUTPORT_H

#include "base/data/DataHolder.h"

namespace VRK {

// An output of a functor, or an internal output of a container seen from inside it.
class OutputPort : public DataHolder {
public:
    // `linked`: the output is meant to feed a particular port (a loop's condition).
    OutputPort(std::string_view name, std::string_view description,
               const std::shared_ptr<BaseType>& type, bool linked);
    ~OutputPort() override;

    bool isLinked() const { return linked_; }

private:
    bool linked_;
};

} // namespace VRK

#endif
