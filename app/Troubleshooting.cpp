#include "app/Troubleshooting.h"

#include "support/alerts/QVAlert.h"
#include "support/desktop/Workspace.h"
#include "support/files/FileUtilities.h"
#include "support/files/StandardFolders.h"
#include "support/files/TaskRunner.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPointer>

#include <memory>

namespace vantrell::Troubleshooting
{

namespace
{

constexpr int archiveTimeoutMs = 60000;

struct LogsText {
    Q_DECLARE_TR_FUNCTIONS(Troubleshooting)
};

QString logFolder()
{
    return StandardFolders::userLibrary() + QStringLiteral("/Logs/Orvandel");
}

QString taskLogPath(const QString &name)
{
    return QStringLiteral("%1/%2 Tasks.log").arg(logFolder(), name);
}

/// Logs the end of a helper program. Any thread.
void appendTaskLog(const QString &name, const QString &line)
{
    QFile file(taskLogPath(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    const QString date = QDateTime::currentDateTime().toString(Qt::ISODate);
    file.write(QStringLiteral("%1 - %2\n").arg(date, line).toUtf8());
}

void show(const QString &path, const QString &whenMissing)
{
    if (QFile::exists(path) && Workspace::openFile(path))
        return;
    QVAlert::alertSheetWithMessageText(LogsText::tr("Unable to show the log"), whenMissing, nullptr);
}

/// Any thread.
Result<QString> archive(const QString &name, const QString &folder)
{
    QVLog::finishWriting();
    const QStringList logs = QDir(logFolder()).entryList({name + QStringLiteral("*.log")}, QDir::Files);
    if (logs.isEmpty())
        return Failure{LogsText::tr("There are no logs.")};
    const QString date = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd"));
    const QString path =
        FileUtilities::uniqueFilePath(QStringLiteral("%1/%2 Logs %3.tgz").arg(folder, name, date));
    QStringList arguments{QStringLiteral("-czf"), path, QStringLiteral("-C"), logFolder(),
                          QStringLiteral("--")};
    arguments += logs;
    const Result<TaskRunner::Output> run =
        TaskRunner::run(QStringLiteral("tar"), arguments, archiveTimeoutMs);
    QString problem = run.message();
    if (run && run.value().exitCode != 0)
        problem = QString::fromLocal8Bit(run.value().standardError).trimmed();
    appendTaskLog(name, QStringLiteral("tar: %1").arg(problem.isEmpty() ? path : problem));
    if (!problem.isEmpty()) {
        QFile::remove(path);
        return Failure{problem};
    }
    return path;
}

} // namespace

void viewLogForApp(const QString &)
{
    QVLog::finishWriting();
    show(QVLog::availableLogs().value(0),
         LogsText::tr("There is no log yet, or no program to show it with."));
}

void viewTaskLogForApp(const QString &name)
{
    show(taskLogPath(name),
         LogsText::tr("No helper program was run yet, or there is no program to show the log with."));
}

void gatherLogsForAppWithName(const QString &name, const QString &folder, QObject *context,
                              const std::function<void(const Result<QString> &)> &ended)
{
    const QPointer<QObject> guard(context);
    BackgroundWork::run([name, folder, guard, ended] {
        const auto result =
            std::make_shared<Result<QString>>(Failure{LogsText::tr("The logs cannot be read.")});
        guarded("gatherLogsForAppWithName", [&] { *result = archive(name, folder); });
        MainThread::post([guard, ended, result] {
            if (guard)
                ended(*result);
        });
    });
}

} // namespace vantrell::Troubleshooting
