#pragma once

#include "tests/support/TemporaryHome.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

#include <csignal>

namespace vantrell
{

/// A running fcp-host with open projects, found by programs with this home. Killed on destruction.
class FcpHost
{
public:
    explicit FcpHost(const TemporaryHome &home)
        : m_log(home.path(QStringLiteral("events.jsonl")))
    {
        m_process.setReadChannel(QProcess::StandardError);
    }
    FcpHost(const FcpHost &) = delete;
    FcpHost &operator=(const FcpHost &) = delete;
    ~FcpHost() { kill(); }

    static QString program()
    {
        return qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/fcp-host");
    }

    /// Installs the application in the folder; it starts the program on request.
    static bool installBundle(const QString &folder)
    {
        return QProcess::execute(program(), {QStringLiteral("--install-bundle"), folder}) == 0;
    }

    /// Starts it with these arguments and waits until it listens; false when it does not.
    bool start(const QStringList &arguments)
    {
        QFile::remove(m_log);
        m_messages.clear();
        m_process.start(program(), QStringList{QStringLiteral("--log"), m_log} + arguments);
        return hasSaid("listening on");
    }

    /// Waits until the text appears on standard error; false when it does not.
    bool hasSaid(const QByteArray &text)
    {
        m_messages += m_process.readAllStandardError();
        while (!m_messages.contains(text) && m_process.waitForReadyRead(40000))
            m_messages += m_process.readAllStandardError();
        return m_messages.contains(text);
    }

    /// Suspends it: requests stay unanswered until goOn().
    void hang() { ::kill(pid_t(m_process.processId()), SIGSTOP); }
    void goOn() { ::kill(pid_t(m_process.processId()), SIGCONT); }
    void kill()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill(); // also when it hangs
        m_process.waitForFinished();
    }

    /// The identifiers of the events received since the start.
    QStringList allEvents() const
    {
        QStringList identifiers;
        for (const QByteArray &line : contentOf(m_log).split('\n')) {
            if (!line.isEmpty())
                identifiers.append(QJsonDocument::fromJson(line).object()[QStringLiteral("id")].toString());
        }
        return identifiers;
    }
    /// The same without those that only list the projects.
    QString events() const
    {
        QStringList identifiers = allEvents();
        identifiers.removeAll(QStringLiteral("fcLP"));
        return identifiers.join(QLatin1Char(' '));
    }

private:
    QString m_log;
    QProcess m_process;
    QByteArray m_messages;
};

} // namespace vantrell
