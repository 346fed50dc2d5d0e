#pragma once

#include "support/log/QVLog.h"
#include "tests/support/TemporaryHome.h"

#include <QStringList>

namespace vantrell
{

/// The lines of the log named "Test" in the home that contain one of the texts, from the first of them on,
/// in their order.
inline QStringList logLines(const TemporaryHome &home, const QStringList &texts)
{
    QVLog::finishWriting();
    const QString log =
        QString::fromUtf8(contentOf(home.path(QStringLiteral(".local/state/Logs/Orvandel/Test.1.log"))));
    QStringList lines;
    for (const QString &line : log.split(QLatin1Char('\n'))) {
        for (const QString &text : texts) {
            if (const qsizetype at = line.indexOf(text); at >= 0) {
                lines.append(line.sliced(at));
                break;
            }
        }
    }
    return lines;
}

} // namespace vantrell
