#pragma once

#include <QString>

#include <cstdio>

namespace vantrell::SystemLog
{

/// Writes one line to the system log, which is standard error, with one call. Any thread.
inline void write(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
}

} // namespace vantrell::SystemLog
