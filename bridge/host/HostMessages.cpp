#include "bridge/host/HostMessages.h"

#include <QByteArray>

#include <cstdio>

namespace vantrell
{

void hostMessage(const QString &message)
{
    const QByteArray line = (QStringLiteral("fcp-host: ") + message + QLatin1Char('\n')).toUtf8();
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

} // namespace vantrell
