#include "support/log/SystemLog.h"

#include <cstdio>

namespace vantrell::SystemLog
{

void write(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

} // namespace vantrell::SystemLog
