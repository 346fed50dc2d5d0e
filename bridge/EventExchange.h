#pragma once

#include "bridge/AppleEventTransport.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <optional>

namespace vantrell
{

/// Writes the message to the system log and, with its cause if there is one, to the log.
void reportEventFailure(const QString &message, const QString &cause = {});

/// The messages of the steps that all events have in common; "%ld" is the error number.
struct EventMessages {
    QStringView address = u"Error creating app description";
    QStringView event = u"Error creating AppleEvent";
    QStringView sending = u"Error sending AppleEvent";
};

/// One event to Final Cut Pro, from its creation to its reply. The first failing step is reported; later
/// steps then do nothing. One thread.
class EventExchange
{
public:
    EventExchange(FourCharCode identifier, const EventCancel &cancel, const EventMessages &messages = {});

    /// Adds a parameter; the message reports its failure.
    void add(FourCharCode keyword, EventDescriptor value, QStringView message);
    enum class Unreferred { Fails, IsLeftOut };
    /// Adds a reference to a file; the last argument says what happens when none can be made.
    void addFile(FourCharCode keyword, const QString &path, QStringView message,
                 Unreferred unreferred = Unreferred::Fails);

    void setTimeout(std::int32_t ticks) { m_event.timeout = ticks; }

    /// The reply; nothing when this or an earlier step failed. A reply that reports an error is a failure.
    std::optional<EventRecord> send();

    /// Failures are not reported from now on.
    void silence() { m_isSilent = true; }

private:
    void fail(QStringView message, const EventFailure &failure);

    const EventMessages m_messages;
    const EventCancel m_cancel;
    const std::shared_ptr<AppleEventTransport> m_transport;
    EventRecord m_event;
    bool m_hasFailed = false;
    bool m_isSilent = false;
};

} // namespace vantrell
