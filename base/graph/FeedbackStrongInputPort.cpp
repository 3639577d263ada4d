#include "base/graph/FeedbackStrongInputPort.h"

namespace VRK {

FeedbackStrongInputPort::FeedbackStrongInputPort(std::string_view name,
                                                 std::string_view description,
                                                 const std::shared_ptr<BaseType>& type)
    : StrongInputPort(name, description, type)
{
}

FeedbackStrongInputPort::~FeedbackStrongInputPort() = default;

std::shared_ptr<InputPort> FeedbackStrongInputPort::clone() const
{
    return std::make_shared<FeedbackStrongInputPort>(*this);
}

void FeedbackStrongInputPort::pullData() {}

void FeedbackStrongInputPort::pullFeedback()
{
    if (isBound())
        StrongInputPort::pullData();
}

} // namespace VRK
