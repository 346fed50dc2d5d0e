#pragma once

#include "bridge/EventCancel.h"
#include "bridge/EventRecord.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <utility>
#include <variant>

namespace vantrell
{

/// Why a step of an event exchange failed.
struct EventFailure {
    std::int32_t number; ///< one of EventError, or what the application reported
    QString reason;      ///< a sentence for the log
};

/// The result of a step: a value or an EventFailure.
template <typename T>
class [[nodiscard]] EventResult
{
public:
    EventResult(T value)
        : m_state(std::in_place_index<0>, std::move(value))
    {
    }
    EventResult(EventFailure failure)
        : m_state(std::in_place_index<1>, std::move(failure))
    {
    }

    bool isOk() const { return m_state.index() == 0; }
    explicit operator bool() const { return isOk(); }

    /// The value; only when isOk().
    T &value() { return *std::get_if<0>(&m_state); }
    /// Only when not isOk().
    const EventFailure &failure() const { return *std::get_if<1>(&m_state); }

private:
    std::variant<T, EventFailure> m_state;
};

/// Creates events, sends them to another application and receives the replies. Stateless; any thread, also
/// concurrently.
class AppleEventTransport
{
public:
    /// `systemTimeout` applies to events with EventRecord::systemTimeout.
    explicit AppleEventTransport(std::chrono::milliseconds systemTimeout = std::chrono::minutes(1))
        : m_systemTimeout(systemTimeout)
    {
    }
    AppleEventTransport(const AppleEventTransport &) = delete;
    AppleEventTransport &operator=(const AppleEventTransport &) = delete;
    virtual ~AppleEventTransport() = default;

    std::chrono::milliseconds systemTimeout() const { return m_systemTimeout; }

    /// The address of the application with that signature.
    virtual EventResult<EventDescriptor> createAddress(FourCharCode signature)
    {
        return EventDescriptor::fromSignature(signature);
    }
    /// An event for that address, without parameters.
    virtual EventResult<EventRecord> createEvent(FourCharCode eventClass, FourCharCode identifier,
                                                 const EventDescriptor &address);
    /// The event with one more parameter. Fails when it could not be sent: it is too large, or the value's
    /// size is invalid for its type.
    virtual EventResult<EventRecord> addParameter(EventRecord event, FourCharCode keyword,
                                                  EventDescriptor value);

    /// Sends the event and waits for its reply. Fails when the event times out, when the application ends or
    /// sends anything but a reply, and at once on cancelling. A reply that reports an error is not a failure.
    virtual EventResult<EventRecord> send(const EventRecord &event, const EventCancel &cancel) = 0;

private:
    const std::chrono::milliseconds m_systemTimeout;
};

} // namespace vantrell
