#include "bridge/AppleEventTransport.h"

#include "bridge/EventCodes.h"
#include "bridge/EventWire.h"

#include <utility>

namespace vantrell
{

EventResult<EventRecord> AppleEventTransport::createEvent(FourCharCode eventClass, FourCharCode identifier,
                                                          const EventDescriptor &address)
{
    return EventRecord{
        .eventClass = eventClass, .identifier = identifier, .address = address, .parameters = {}};
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
