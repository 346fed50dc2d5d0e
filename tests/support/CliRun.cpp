#include "tests/support/CliRun.h"

#include <QProcess>

namespace vantrell
{

CliRun runCli(const QStringList &arguments, const QByteArray &input)
{
    return runProgram(qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/vantrell-cli"), arguments,
                      input);
}

CliRun runProgram(const QString &program, const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    CliRun run;
    if (process.waitForFinished(40000) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.messages = process.readAllStandardError();
    return run;
}

} // namespace vantrell
