#include "cli/Console.h"

#include "cli/CommandLine.h"
#include "support/log/SystemLog.h"

#include <QByteArray>
#include <QFile>

#include <cstdio>

namespace vantrell::cli
{

namespace
{

constexpr qint64 interval = 200; // milliseconds

void write(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
    std::fflush(stderr);
}

} // namespace

bool print(const QByteArray &bytes)
{
    const bool written =
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout) == std::size_t(bytes.size()) &&
        std::fflush(stdout) == 0;
    if (!written)
        complain(QStringLiteral("standard output cannot be written."));
    return written;
}

void complain(const QString &message)
{
    SystemLog::write(QStringLiteral("vantrell-cli: ") + message);
}

int refuseUsage(const QString &message)
{
    complain(message);
    return WrongUsage;
}

int fail(const QString &message)
{
    complain(message);
    return Failed;
}

Result<void> writeOutput(const QString &path, const FileUtilities::Writer &writer)
{
    if (path != QLatin1String("-"))
        return FileUtilities::writeAtomically(path, writer);
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return Failure{output.errorString()};
    const Result<void> written = writer(output);
    if (written && !output.flush())
        return Failure{output.errorString()};
    return written;
}

QStringList readLines()
{
    QFile input;
    QStringList lines;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return lines;
    QList<QByteArray> parts = input.readAll().split('\n');
    if (parts.last().isEmpty())
        parts.removeLast(); // behind the last line end
    for (const QByteArray &part : parts)
        lines.append(QString::fromUtf8(part.endsWith('\r') ? part.chopped(1) : part));
    return lines;
}

void StatusLine::show(const QString &text)
{
    if (!m_isTerminal || (m_sinceShown.isValid() && m_sinceShown.elapsed() < interval))
        return;
    m_sinceShown.start();
    m_isShown = true;
    write("\r\033[K" + text.toUtf8());
}

void StatusLine::clear()
{
    if (m_isShown)
        write("\r\033[K");
    m_isShown = false;
}

} // namespace vantrell::cli
