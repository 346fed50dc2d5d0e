#pragma once

#include "support/files/ChildProcess.h"
#include "tests/support/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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

/// A process that is ended with the test.
class RunningProgram
{
public:
    RunningProgram(const QString &program, const QStringList &arguments)
        : m_process(ChildProcess::start({.program = program, .arguments = arguments, .workingDirectory = {}}))
    {
    }
    ~RunningProgram() { end(); }
    RunningProgram(const RunningProgram &) = delete;
    RunningProgram &operator=(const RunningProgram &) = delete;

    void end()
    {
        if (!m_process)
            return;
        m_process.value().killGroup();
        m_process.value().waitForEnd(5000);
    }
    bool hasStarted() const { return m_process.isOk(); }

private:
    Result<ChildProcess> m_process;
};

} // namespace vantrell
