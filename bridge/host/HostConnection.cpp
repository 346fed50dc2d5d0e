#include "bridge/host/HostConnection.h"

#include "bridge/EventCodes.h"
#include "bridge/EventWire.h"
#include "bridge/FileReference.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds patience = std::chrono::seconds(30);
constexpr qsizetype largestEvent = qsizetype(1) << 29; // bytes
constexpr std::chrono::seconds startPatience(10);      // with a host that is just starting
constexpr std::chrono::milliseconds handOverInterval(20);

Result<EventRecord> openEvent(const QStringList &files)
{
    std::vector<EventDescriptor> references;
    for (const QString &file : files) {
        auto reference = fileReferenceForPath(file);
        if (!reference)
            return Failure{QStringLiteral("The file \"%1\" is not there.").arg(file)};
        references.push_back(EventDescriptor::fromFileReference(*std::move(reference)));
    }
    return EventRecord{
        .eventClass = EventCode::CoreClass,
        .identifier = EventCode::OpenDocuments,
        .address = EventDescriptor::fromSignature(EventCode::FinalCutPro),
        .timeout = EventRecord::noTimeout,
        .parameters = {{EventCode::DirectObject, EventDescriptor::fromList(std::move(references))}}};
}

Result<void> sendTo(HostConnection &connection, const EventRecord &event)
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
    const EventDescriptor *text = reply.value()->parameter(EventCode::ErrorText);
    const auto reason = text ? text->toUtf8() : std::nullopt;
    return Failure{reason ? QString::fromUtf8(*reason)
                          : QStringLiteral("The host that runs could not open the files (error %1).")
                                .arg(reply.value()->errorNumber())};
}

} // namespace

HostConnection::HostConnection(Descriptor socket, const EventCancel &stop)
    : m_connection(std::move(socket), stop, [] { return patience; })
{
}

Result<std::optional<EventRecord>> HostConnection::readEvent()
{
    if (!m_connection.waitForRecord())
        return std::optional<EventRecord>();
    qsizetype left = largestEvent;
    Result<EventRecord> event = EventWire::read([&](char *buffer, qsizetype maximum) {
        const qsizetype got = left > 0 ? m_connection.read(buffer, std::min(maximum, left)) : -1;
        left -= got;
        return got;
    });
    if (!event)
        return event.failure();
    return std::optional<EventRecord>(std::move(event.value()));
}

Result<void> HostConnection::write(const EventRecord &record, Extent extent)
{
    const auto pieces = EventWire::pieces(record);
    if (!pieces)
        return pieces.failure();
    qsizetype left = 0;
    for (const QByteArray &piece : pieces.value())
        left += piece.size();
    if (extent == Extent::Half)
        left /= 2;
    for (const QByteArray &piece : pieces.value()) {
        const qsizetype size = std::min(piece.size(), left);
        left -= size;
        if (!m_connection.write(QByteArrayView(piece).first(size)))
            return Failure{QStringLiteral("The other end did not take the whole reply.")};
    }
    return {};
}

Result<HandOver> handOver(HostSocket &socket, const QStringList &files, const EventCancel &stop)
{
    const QDeadlineTimer deadline(startPatience);
    while (!deadline.hasExpired()) {
        const Result<HostSocket::Claim> claim = socket.claim();
        if (!claim)
            return claim.failure();
        if (claim.value() == HostSocket::Claim::Own)
            return HandOver::Nobody;
        if (Descriptor other = socket.connect(); other.isOpen()) {
            if (files.isEmpty())
                return HandOver::Done;
            const Result<EventRecord> event = openEvent(files);
            if (!event)
                return event.failure();
            HostConnection connection(std::move(other), stop);
            const Result<void> sent = sendTo(connection, event.value());
            return sent ? Result<HandOver>(HandOver::Done) : sent.failure();
        }
        if (stop.waitFor(handOverInterval))
            break;
    }
    return Failure{QStringLiteral("Another host has claimed \"%1\" and does not answer.").arg(socket.path())};
}

} // namespace vantrell
