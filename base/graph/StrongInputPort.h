#ifndef VRK_BASE_GRAPH_STRONGINPUTPORT_H
#define VRK_BASE_GRAPH_STRONGINPUTPORT_H

#include "base/graph/InputPort.h"

namespace VRK {

// An input that is only ever bound, never typed in: it has no editor.
class StrongInputPort : public InputPort {
public:
    StrongInputPort(std::string_view name, std::string_view description,
                    const std::shared_ptr<BaseType>& type);
    ~StrongInputPort() override;

    std::shared_ptr<InputPort> clone() const override;
};

} // namespace VRK

#endif
