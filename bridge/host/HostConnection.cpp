#include "bridge/host/HostConnection.h"

#include "bridge/EventWire.h"

#include <algorithm>
#include <unistd.h>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds patience = std::chrono::seconds(30);
constexpr qsizetype largestEvent = qsizetype(1) << 29; // bytes

} // namespace

HostConnection::HostConnection(Descriptor socket, const EventCancel &stop)
    : m_connection(std::move(socket), stop, [] { return patience; })
{
}

bool HostConnection::isOfThisUser() const
{
    return m_connection.belongsTo(::geteuid());
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

} // namespace vantrell
