#include "plugins/maps/MuxMapFunctor.h"

#include "base/graph/FeedbackStrongInputPort.h"
#include "base/util/Singleton.h"
#include "plugins/maps/MapData.h"
#include "plugins/maps/MapType.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/flow/MultiplexerType.h"

#include <memory>

namespace Maps {

MuxMap::MuxMap()
    : Functor("MuxMap", "Initiate and feedback a loop variable containing a map.",
              VRK::Singleton<Prim::MultiplexerType>::getInstance())
{
    addInputPort("initial", "Initial map.", MapType::getInstance(), false);
    addInputPort(std::make_shared<VRK::FeedbackStrongInputPort>(
        "feedback", "Map generated from model step.", MapType::getInstance()));
    addOutputPort("map", "Map.", MapType::getInstance());
    setFlag(VRK::FunctorFlags::Multiplexer, true);
}

MuxMap::~MuxMap() = default;

void MuxMap::runImpl()
{
    const VRK::InputPort& initial = requireInputPort("initial");
    const VRK::InputPort& feedback = requireInputPort("feedback");
    const bool fed = feedback.hasData();
    passOnInputPortValue<MapData>(fed ? feedback : initial, requireOutputPort("map"));
    Prim::ControlLog::log(VRK::debug, [&](std::ostream& line) {
        line << "Functor \"" << getName() << ":" << static_cast<const void*>(this)
             << "\" forwarded the " << (fed ? "feedback" : "initial") << " data.";
    });
}

} // namespace Maps
