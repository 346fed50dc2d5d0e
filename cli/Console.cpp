#include "cli/Console.h"

#include "cli/CommandLine.h"

#include <QFile>

#include <cstdio>

namespace vantrell::cli
{

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
    const QByteArray line = (QStringLiteral("vantrell-cli: ") + message + QLatin1Char('\n')).toUtf8();
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

int refuseUsage(const QString &message)
{
    complain(message);
    return WrongUsage;
}

QStringList readLines()
{
    QFile input;
    QStringList lines;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return lines;
    const QByteArray text = input.readAll();
    qsizetype start = 0;
    while (start < text.size()) {
        qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        const qsizetype length = end > start && text.at(end - 1) == '\r' ? end - start - 1 : end - start;
        lines.append(QString::fromUtf8(text.mid(start, length)));
        start = end + 1;
    }
    return lines;
}

} // namespace vantrell::cli
