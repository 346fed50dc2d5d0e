#pragma once

#include "support/Workspace.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QThread>

#include <csignal>

namespace vantrell
{

/// The stand-in for Final Cut Pro as a process of its own, with its socket in the runtime folder of the
/// environment.
class HostProcess
{
public:
    /// Writes its bundle into the folder; false when that fails.
    static bool installBundle(const QString &folder)
    {
        QProcess install;
        install.start(program(), {QStringLiteral("--install-bundle"), folder});
        return install.waitForFinished() && install.exitCode() == 0;
    }

    ~HostProcess()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill(); // also when it is stopped
        m_process.waitForFinished();
    }

    /// Starts it with that command line and waits until it answers; false when it does not.
    bool start(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program(), arguments);
        QElapsedTimer time;
        time.start();
        while (!isAnswering() && time.elapsed() < 20000 && m_process.state() != QProcess::NotRunning)
            QThread::msleep(5);
        return isAnswering();
    }

    /// It hangs: what it is asked stays without an answer.
    void hang() { ::kill(pid_t(m_process.processId()), SIGSTOP); }
    void goOn() { ::kill(pid_t(m_process.processId()), SIGCONT); }

private:
    static QString program()
    {
        return qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/fcp-host");
    }
    static bool isAnswering() { return Workspace::isRunning(QStringLiteral("com.apple.FinalCutPro")); }

    QProcess m_process;
};

} // namespace vantrell
