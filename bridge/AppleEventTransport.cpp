#include "bridge/AppleEventTransport.h"

#include "bridge/EventCodes.h"
#include "bridge/EventWire.h"

#include <utility>

namespace vantrell
{

EventResult<EventDescriptor> AppleEventTransport::createAddress(FourCharCode signature)
{
    return EventDescriptor::fromSignature(signature);
}

EventResult<EventRecord> AppleEventTransport::createEvent(FourCharCode eventClass, FourCharCode identifier,
                                                          const EventDescriptor &address)
{
    EventRecord event;
    event.eventClass = eventClass;
    event.identifier = identifier;
    event.address = address;
    return event;
}

EventResult<EventRecord> AppleEventTransport::addParameter(EventRecord event, FourCharCode keyword,
                                                           EventDescriptor value)
{
    event.setParameter(keyword, std::move(value));
    if (const auto pieces = EventWire::pieces(event); !pieces)
        return EventFailure{EventError::BadParameter, pieces.message()};
    return event;
}

} // namespace vantrell
