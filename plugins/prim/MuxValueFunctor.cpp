#include "plugins/prim/MuxValueFunctor.h"

#include "base/graph/FeedbackStrongInputPort.h"
#include "base/util/Singleton.h"
#include "plugins/prim/ControlLog.h"
#include "plugins/prim/DoubleType.h"
#include "plugins/prim/MultiplexerType.h"

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
    const bool fed = getInputPort("feedback")->hasData();
    passOnInputPortValue<DoubleData>(fed ? "feedback" : "initial", "value");
    ControlLog::log(VRK::debug, [&](std::ostream& line) {
        line << "Functor \"" << getName() << ":" << static_cast<const void*>(this)
             << "\" forwarded the " << (fed ? "feedback" : "initial") << " data.";
    });
}

} // namespace Prim
