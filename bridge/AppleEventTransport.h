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

/// Why a step of an exchange failed.
struct EventFailure {
    std::int32_t number; ///< one of EventError, or what the application reported
    QString reason;      ///< a sentence for the log
};

/// What a step gives back: a value, or an EventFailure.
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

/// What makes events and carries them to another application and the replies back. Stateless; any thread,
/// several at a time.
class AppleEventTransport
{
public:
    /// `systemTimeout` is how long an event may take that asks for the system's time-out.
    explicit AppleEventTransport(std::chrono::milliseconds systemTimeout = std::chrono::minutes(1))
        : m_systemTimeout(systemTimeout)
    {
    }
    AppleEventTransport(const AppleEventTransport &) = delete;
    AppleEventTransport &operator=(const AppleEventTransport &) = delete;
    virtual ~AppleEventTransport() = default;

    std::chrono::milliseconds systemTimeout() const { return m_systemTimeout; }

    /// The address of the application with that signature.
    virtual EventResult<EventDescriptor> createAddress(FourCharCode signature);
    /// An event to that address, without parameters.
    virtual EventResult<EventRecord> createEvent(FourCharCode eventClass, FourCharCode identifier,
                                                 const EventDescriptor &address);
    /// The event with one parameter more. Fails when it could not be carried with it: it is too large, or a
    /// value of a size that its type does not have.
    virtual EventResult<EventRecord> addParameter(EventRecord event, FourCharCode keyword,
                                                  EventDescriptor value);

    /// Sends the event and waits for its reply; fails when the event's time-out has passed, when the
    /// application ends or sends something else than a reply, and at once on cancelling. A reply that
    /// reports an error is none of these.
    virtual EventResult<EventRecord> send(const EventRecord &event, const EventCancel &cancel) = 0;

private:
    const std::chrono::milliseconds m_systemTimeout;
};

} // namespace vantrell
