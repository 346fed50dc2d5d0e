#include "bridge/host/HostOptions.h"

#include "bridge/host/HostMessages.h"
#include "support/files/ProgramArguments.h"

#include <CLI/CLI.hpp>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <string>
#include <vector>

namespace vantrell
{

namespace
{

constexpr int wrongUsage = 2;
constexpr double longestDelay = 3600; // seconds

QString absolutePath(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool isVersion(const QString &version)
{
    return !version.isEmpty() && std::all_of(version.begin(), version.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.');
    });
}

} // namespace

std::optional<HostOptions> HostOptions::read(int argc, char **argv, int &status)
{
    HostOptions options;
    std::vector<std::string> files;
    std::vector<std::string> closedFiles;
    std::string version = options.version.toStdString();
    std::string socketFolder;
    std::string logPath;
    std::string failingEvent;
    std::string bundleFolder;
    double delay = 0; // seconds

    CLI::App program("Stand in for Final Cut Pro, with xmeml files as its open projects", "fcp-host");
    program.set_version_flag("--program-version", "fcp-host " VANTRELL_VERSION);
    program.add_option("FILE", files, "xmeml files that are open from the start");
    program.add_option("--closed", closedFiles, "An xmeml file that is known and not open; may be repeated")
        ->allow_extra_args(false);
    program.add_option("--socket-dir", socketFolder,
                       "Folder of the socket; $XDG_RUNTIME_DIR/vantrell unless given");
    program.add_option("--version", version, "Version of the application, 7.0.3 unless given");
    program.add_flag("--hand-over", options.handsOver, "Give the files to a host that runs already");
    program.add_option("--log", logPath, "Append each event to this file, as one line of JSON");
    program.add_option("--delay", delay, "Seconds to wait before each answer");
    program.add_option("--fail", failingEvent, "Answer this event with an error")
        ->check(CLI::IsMember({"fcLP", "iXML", "eXML", "gXML", "eTCX", "fcOI", "sfcP", "cfcP", "odoc"}));
    program.add_flag("--truncate", options.truncates, "Cut each reply short");
    program.add_option("--install-bundle", bundleFolder,
                       "Write \"Final Cut Pro.app\", which starts this program, into this folder");
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        status = program.exit(error) == 0 ? 0 : wrongUsage;
        return std::nullopt;
    }

    status = wrongUsage;
    options.version = fromArgument(version);
    QString fault;
    if (!isVersion(options.version))
        fault = QStringLiteral("--version: \"%1\" is no version.").arg(options.version);
    else if (!(delay >= 0 && delay <= longestDelay))
        fault = QStringLiteral("--delay: give 0 to %1 seconds.").arg(longestDelay);
    else if (!bundleFolder.empty() && (!files.empty() || !closedFiles.empty()))
        fault = QStringLiteral("--install-bundle takes no projects.");
    if (!fault.isEmpty()) {
        hostMessage(fault);
        return std::nullopt;
    }
    status = 0;
    options.delay = std::chrono::milliseconds(qint64(delay * 1000));
    options.files = fromArguments(files);
    options.closedFiles = fromArguments(closedFiles);
    options.socketFolder = absolutePath(fromArgument(socketFolder));
    options.logPath = absolutePath(fromArgument(logPath));
    options.failingEvent = fromArgument(failingEvent);
    options.bundleFolder = absolutePath(fromArgument(bundleFolder));
    return options;
}

QStringList HostOptions::bundleArguments() const
{
    QStringList arguments{QStringLiteral("--hand-over"), QStringLiteral("--version"), version};
    const auto append = [&](const char *option, const QString &value) {
        if (!value.isEmpty())
            arguments << QLatin1String(option) << value;
    };
    append("--socket-dir", socketFolder);
    append("--log", logPath);
    append("--fail", failingEvent);
    if (delay.count() > 0)
        append("--delay", QString::number(double(delay.count()) / 1000));
    if (truncates)
        arguments << QStringLiteral("--truncate");
    return arguments;
}

} // namespace vantrell
