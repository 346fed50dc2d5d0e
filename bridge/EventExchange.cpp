#include "bridge/EventExchange.h"

#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/SocketEventTransport.h"
#include "support/log/QVLog.h"
#include "support/log/SystemLog.h"

namespace vantrell
{

void reportEventFailure(const QString &message, const QString &cause)
{
    SystemLog::write(message);
    if (cause.isEmpty())
        QVLog::appendLog(u"%@", message);
    else
        QVLog::appendLog(u"%@ (%@)", message, cause);
}

EventExchange::EventExchange(FourCharCode identifier, const EventCancel &cancel,
                             const EventMessages &messages)
    : m_messages(messages)
    , m_cancel(cancel)
    , m_transport(sharedEventTransport())
{
    m_event.identifier = identifier;
    auto address = m_transport->createAddress(EventCode::FinalCutPro);
    if (!address) {
        fail(m_messages.address, address.failure());
        return;
    }
    auto event = m_transport->createEvent(EventCode::FinalCutPro, identifier, address.value());
    if (event)
        m_event = std::move(event.value());
    else
        fail(m_messages.event, event.failure());
}

void EventExchange::add(FourCharCode keyword, EventDescriptor value, QStringView message)
{
    if (m_hasFailed)
        return;
    auto event = m_transport->addParameter(m_event, keyword, std::move(value));
    if (!event)
        return fail(message, event.failure());
    m_event = std::move(event.value());
}

void EventExchange::addFile(FourCharCode keyword, const QString &path, QStringView message,
                            Unreferred unreferred)
{
    if (m_hasFailed)
        return;
    if (const auto reference = fileReferenceForPath(path))
        add(keyword, EventDescriptor::fromFileReference(*reference), message);
    else if (unreferred == Unreferred::Fails)
        fail(message,
             {EventError::FileNotFound, QStringLiteral("there is no file to refer to at \"%1\"").arg(path)});
}

std::optional<EventRecord> EventExchange::send()
{
    if (m_hasFailed)
        return {};
    auto reply = m_transport->send(m_event, m_cancel);
    if (!reply) {
        fail(m_messages.sending, reply.failure());
        return {};
    }
    if (const std::int32_t number = reply.value().errorNumber(); number != 0) {
        fail(m_messages.sending,
             {number, QStringLiteral("the application reported the error %1").arg(number)});
        return {};
    }
    return std::move(reply.value());
}

void EventExchange::fail(QStringView message, const EventFailure &failure)
{
    m_hasFailed = true;
    if (m_isSilent)
        return;
    reportEventFailure(formatText(message, failure.number),
                       m_event.identifier.text() + QStringLiteral(": ") + failure.reason);
}

} // namespace vantrell
