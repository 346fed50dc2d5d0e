#pragma once

#include "tests/support/TemporaryHome.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

namespace vantrell
{

/// The program fcp-host with projects open in it, where the programs of the home look for it; ended with
/// this object.
class FcpHost
{
public:
    FcpHost(const TemporaryHome &home, const QStringList &arguments)
        : m_log(home.path(QStringLiteral("events.jsonl")))
    {
        QFile::remove(m_log);
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(program(), QStringList{QStringLiteral("--log"), m_log} + arguments);
    }
    FcpHost(const FcpHost &) = delete;
    FcpHost &operator=(const FcpHost &) = delete;
    ~FcpHost()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    static QString program()
    {
        return qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/fcp-host");
    }

    /// Has the application installed in the folder, which starts the program when it is asked for.
    static bool installBundle(const QString &folder)
    {
        return QProcess::execute(program(), {QStringLiteral("--install-bundle"), folder}) == 0;
    }

    /// Waits until it listens.
    bool isReady()
    {
        QByteArray messages;
        while (!messages.contains("listening on") && m_process.waitForReadyRead(60000))
            messages += m_process.readAllStandardError();
        return messages.contains("listening on");
    }

    /// The events that came so far, by their identifiers, but for those that only list the projects.
    QString events() const
    {
        QStringList identifiers;
        for (const QByteArray &line : contentOf(m_log).split('\n')) {
            const QString identifier =
                QJsonDocument::fromJson(line).object()[QStringLiteral("id")].toString();
            if (!identifier.isEmpty() && identifier != QStringLiteral("fcLP"))
                identifiers.append(identifier);
        }
        return identifiers.join(QLatin1Char(' '));
    }

private:
    QString m_log;
    QProcess m_process;
};

} // namespace vantrell
