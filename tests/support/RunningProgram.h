#pragma once

#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <csignal>
#include <unistd.h>

namespace vantrell
{

/// Puts a program that only sleeps where an application's executable is expected.
inline bool makeSleeper(const QString &executable)
{
    return QDir().mkpath(QFileInfo(executable).path()) &&
           QFile::copy(QFileInfo(QStringLiteral("/bin/sleep")).canonicalFilePath(), executable);
}

/// Writes a shell script that can be run, and gives its path.
inline QString addShellScript(const TemporaryHome &home, const QString &relative, const QByteArray &commands)
{
    const QString path = home.addFile(relative, "#!/bin/sh\n" + commands);
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner);
    return path;
}

/// A process that is ended with the test, and those that it started with it.
class RunningProgram
{
public:
    RunningProgram(const QString &program, const QStringList &arguments)
    {
        m_process.setChildProcessModifier([] { ::setpgid(0, 0); });
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.start(program, arguments);
        m_process.waitForStarted();
    }
    ~RunningProgram() { end(); }
    RunningProgram(const RunningProgram &) = delete;
    RunningProgram &operator=(const RunningProgram &) = delete;

    void end()
    {
        if (!hasStarted())
            return;
        ::kill(static_cast<pid_t>(-id()), SIGKILL);
        m_process.waitForFinished(5000);
    }
    bool hasStarted() const { return m_process.state() == QProcess::Running; }
    qint64 id() const { return m_process.processId(); }

private:
    QProcess m_process;
};

} // namespace vantrell
