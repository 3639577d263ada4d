#ifndef VRK_BASE_GRAPH_FEEDBACKSTRONGINPUTPORT_H
#define VRK_BASE_GRAPH_FEEDBACKSTRONGINPUTPORT_H

#include "base/graph/StrongInputPort.h"

namespace VRK {

// A bound input that may close a cycle inside a loop: during a pass it holds what its
// peer produced in the previous pass, and nothing on a loop's first pass.
class FeedbackStrongInputPort : public StrongInputPort {
public:
    FeedbackStrongInputPort(std::string_view name, std::string_view description,
                            const std::shared_ptr<BaseType>& type);
    ~FeedbackStrongInputPort() override;

    std::shared_ptr<InputPort> clone() const override;
    bool isFeedback() const override { return true; }

    // A run does not pull a feedback port: the enclosing loop carries its data over.
    void pullData() override;
    // Takes the peer's current data; the loop calls it at the end of each pass.
    void pullFeedback();
};

} // namespace VRK

#endif
