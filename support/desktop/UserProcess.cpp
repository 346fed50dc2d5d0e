#include "support/desktop/UserProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

constexpr qsizetype ArgumentsRead = 4;
constexpr qint64 CommandLineBytes = 16384;
constexpr qint64 FirstLineBytes = 256;

QString processFolder(qint64 id)
{
    return QStringLiteral("/proc/%1").arg(id);
}

QString linkTarget(const QString &path)
{
    QString target = QFile::symLinkTarget(path);
    const QLatin1String replaced(" (deleted)"); // the file was replaced while the process ran
    if (target.endsWith(replaced))
        target.chop(replaced.size());
    return target;
}

QStringList commandLine(qint64 id)
{
    QFile file(processFolder(id) + QStringLiteral("/cmdline"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList arguments;
    const QList<QByteArray> parts = file.read(CommandLineBytes).split('\0');
    for (const QByteArray &part : parts.first(std::min(parts.size(), ArgumentsRead)))
        arguments.append(QFile::decodeName(part));
    return arguments;
}

/// Whether the executable is the one that a script's first line names.
bool isInterpretedBy(const QString &script, const QString &executable)
{
    QFile file(script);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.readLine(FirstLineBytes);
    if (!line.startsWith("#!"))
        return false;
    QStringList words = QFile::decodeName(line.mid(2).simplified()).split(QLatin1Char(' '));
    QString interpreter = words.takeFirst();
    if (QFileInfo(interpreter).fileName() == QLatin1String("env")) {
        while (!words.isEmpty() && words.first().startsWith(QLatin1Char('-')))
            words.removeFirst();
        interpreter = words.isEmpty() ? QString() : QStandardPaths::findExecutable(words.first());
    }
    return QFileInfo(interpreter).canonicalFilePath() == executable;
}

} // namespace

std::vector<UserProcess> UserProcess::all()
{
    std::vector<UserProcess> processes;
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs, QDir::NoSort);
    for (const QString &name : names) {
        bool isId = false;
        const qint64 id = name.toLongLong(&isId);
        struct stat status;
        if (!isId || ::stat(QFile::encodeName(processFolder(id)).constData(), &status) != 0 ||
            status.st_uid != ::geteuid()) {
            continue;
        }
        const QString executable = linkTarget(processFolder(id) + QStringLiteral("/exe"));
        if (!executable.isEmpty()) // empty for one that has ended and for the kernel's own
            processes.push_back({id, executable, commandLine(id)});
    }
    std::sort(processes.begin(), processes.end(),
              [](const UserProcess &a, const UserProcess &b) { return a.id < b.id; });
    return processes;
}

QString UserProcess::programBelow(const QString &folder) const
{
    const QString prefix = folder + QLatin1Char('/');
    const QString folderName = QLatin1Char('/') + QFileInfo(folder).fileName() + QLatin1Char('/');
    if (executable.startsWith(prefix))
        return executable;
    // An interpreter is given its script behind at most one option of its own.
    for (qsizetype i = 1; i < std::min<qsizetype>(arguments.size(), 3); ++i) {
        QString argument = arguments.at(i);
        if (argument.isEmpty() || argument.startsWith(QLatin1Char('-')))
            continue;
        if (!argument.startsWith(QLatin1Char('/')))
            argument.prepend(linkTarget(processFolder(id) + QStringLiteral("/cwd")) + QLatin1Char('/'));
        // Looked at by its text first: a foreign argument may lie on a volume that does not answer.
        if (!argument.contains(folderName))
            continue;
        const QString script = QFileInfo(argument).canonicalFilePath();
        if (script.startsWith(prefix) && isInterpretedBy(script, executable))
            return script;
    }
    return {};
}

} // namespace vantrell
