#include "plugins/prim/flow/MuxValueFunctor.h"

#include "base/graph/FeedbackStrongInputPort.h"
#include "base/util/Singleton.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/flow/MultiplexerType.h"
#include "plugins/prim/values/numbers/DoubleType.h"

#include <memory>

namespace Prim {

MuxValue::MuxValue()
    : Functor("MuxValue", "Initiate and feedback a loop variable containing a value.",
              VRK::Singleton<MultiplexerType>::getInstance())
{
    addInputPort("initial", "Initial value.", DoubleType::getInstance(), false, {"first"});
    addInputPort(std::make_shared<VRK::FeedbackStrongInputPort>(
        "feedback", "Value generated from model step.", DoubleType::getInstance()));
    addOutputPort("value", "Value.", DoubleType::getInstance());
    setFlag(VRK::FunctorFlags::Multiplexer, true);
}

MuxValue::~MuxValue() = default;

void MuxValue::runImpl()
{
    // A multiplexer forwards at every pass of a loop: its ports are reached by their
    // place, in the order the constructor declares them, rather than looked up by name.
    const VRK::InputPort& initial = *getInputPorts()[0];
    const VRK::InputPort& feedback = *getInputPorts()[1];
    const bool fed = feedback.hasData();
    passOnInputPortValue<DoubleData>(fed ? feedback : initial, *getOutputPorts().front());
    ControlLog::log(VRK::debug, [&](std::ostream& line) {
        line << "Functor \"" << getName() << ":" << static_cast<const void*>(this)
             << "\" forwarded the " << (fed ? "feedback" : "initial") << " data.";
    });
}

} // namespace Prim
