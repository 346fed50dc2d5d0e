#include "bridge/host/HandOver.h"

#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/host/HostCodes.h"
#include "bridge/host/HostConnection.h"

#include <QDeadlineTimer>

#include <chrono>

namespace vantrell::HandOver
{

namespace
{

constexpr std::chrono::seconds patience(10); // with a host that is just starting
constexpr std::chrono::milliseconds retryInterval(20);

Result<EventRecord> openEvent(const QStringList &files)
{
    std::vector<EventDescriptor> references;
    for (const QString &file : files) {
        auto reference = fileReferenceForPath(file);
        if (!reference)
            return Failure{QStringLiteral("The file \"%1\" is not there.").arg(file)};
        references.push_back(EventDescriptor::fromFileReference(*std::move(reference)));
    }
    EventRecord event;
    event.eventClass = EventCode::CoreClass;
    event.identifier = HostCode::OpenDocuments;
    event.address = EventDescriptor::fromSignature(EventCode::FinalCutPro);
    event.timeout = EventRecord::noTimeout;
    event.setParameter(HostCode::DirectObject, EventDescriptor::fromList(std::move(references)));
    return event;
}

Result<void> send(HostConnection &connection, const EventRecord &event)
{
    if (const Result<void> written = connection.write(event); !written)
        return written;
    const auto reply = connection.readEvent();
    if (!reply)
        return reply.failure();
    if (!reply.value())
        return Failure{QStringLiteral("The host that runs did not answer.")};
    if (reply.value()->errorNumber() == 0)
        return {};
    const EventDescriptor *text = reply.value()->parameter(HostCode::ErrorText);
    const auto reason = text ? text->toUtf8() : std::nullopt;
    return Failure{reason ? QString::fromUtf8(*reason)
                          : QStringLiteral("The host that runs could not open the files (error %1).")
                                .arg(reply.value()->errorNumber())};
}

} // namespace

Result<Outcome> run(HostSocket &socket, const QStringList &files, const EventCancel &stop)
{
    const QDeadlineTimer deadline(patience);
    while (!deadline.hasExpired()) {
        const Result<HostSocket::Claim> claim = socket.claim();
        if (!claim)
            return claim.failure();
        if (claim.value() == HostSocket::Claim::Own)
            return Outcome::Nobody;
        if (Descriptor other = socket.connect(); other.isOpen()) {
            if (files.isEmpty())
                return Outcome::Done;
            const Result<EventRecord> event = openEvent(files);
            if (!event)
                return event.failure();
            HostConnection connection(std::move(other), stop);
            const Result<void> sent = send(connection, event.value());
            if (!sent)
                return sent.failure();
            return Outcome::Done;
        }
        if (stop.waitFor(retryInterval))
            break;
    }
    return Failure{QStringLiteral("Another host has claimed \"%1\" and does not answer.").arg(socket.path())};
}

} // namespace vantrell::HandOver
