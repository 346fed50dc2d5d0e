#include "bridge/QVPremiereEvents.h"

#include "support/alerts/QVAlert.h"
#include "support/desktop/Workspace.h"
#include "support/files/FileUtilities.h"
#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/files/TaskRunner.h"
#include "support/files/TransientFile.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/log/SystemLog.h"
#include "support/text/TextFormat.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlDocument.h"

#include <QDir>
#include <QFileInfo>

#include <mutex>
#include <thread>

namespace vantrell
{

namespace
{

struct Settings {
    std::mutex mutex; // guards the two below
    QVPremiereEvents::Waits waits;
    QString openProgram;
};

Settings &settings()
{
    static Settings settings;
    return settings;
}

QString openProgram()
{
    const std::lock_guard lock(settings().mutex);
    const QString &program = settings().openProgram;
    return program.isEmpty() ? QStringLiteral("/usr/bin/open") : program;
}

bool isPremiereRunning()
{
    return Workspace::isRunning(QVPremiere::bundleIdentifier());
}

QString switchFilePath(const QString &version)
{
    return formatText(u"%@/Adobe Premiere Pro CS%@/extendscriptprqe.txt", Workspace::applicationsFolder(),
                      QVPremiere::creativeSuiteNumber(version));
}

void launchPremiere(const QString &number)
{
    const QString path = formatText(u"%@/Adobe Premiere Pro CS%@/Adobe Premiere Pro CS%@.app",
                                    Workspace::applicationsFolder(), number, number);
    if (!Workspace::openFile(path))
        QVLog::appendLog(u"%@ could not be opened.", path);
}

QString toolkitPath(const QString &number)
{
    return formatText(u"%@/Adobe Utilities-CS%@.localized/ExtendScript Toolkit CS%@/ExtendScript Toolkit.app",
                      Workspace::adminApplicationsFolder(), number, number);
}

/// Writes the script to a file of its own.
Result<TransientFile> writeScript(const QString &text)
{
    const QString folder = StandardFolders::documents() + QStringLiteral("/Adobe Scripts");
    QDir().mkpath(folder);
    Result<TransientFile> file = TransientFile::make(folder + QStringLiteral("/QV_Script.jsx"));
    if (!file)
        return file;
    const Result<void> written = FileUtilities::writeAtomically(file.value().path(), text.toUtf8());
    if (!written)
        return written.failure();
    return file;
}

void runScript(const QString &path, const QString &number, const EventCancel &cancel)
{
    const QVPremiereEvents::Waits waits = QVPremiereEvents::waits();
    SystemLog::write(QStringLiteral("start"));
    const auto ended =
        TaskRunner::run(openProgram(),
                        {QStringLiteral("-W"), QStringLiteral("-g"), QStringLiteral("-n"),
                         QStringLiteral("-a"), toolkitPath(number), path},
                        int(waits.script.count()), {}, [&cancel] { return cancel.isCancelled(); });
    SystemLog::write(QStringLiteral("end"));
    if (!ended)
        QVLog::appendLog(u"%@", ended.message());
    std::this_thread::sleep_for(waits.ended);
}

/// executeScript() without its exception handling.
void execute(const QString &command, bool shouldLaunch, const EventCancel &cancel)
{
    QVPremiereEvents::createQeObject(cancel);
    const QStringList versions = QVPremiere::premiereVersions();
    if (versions.isEmpty()) {
        QVLog::appendLog(u"Premiere Pro not found on this computer.");
        return;
    }
    const QString number = QVPremiere::creativeSuiteNumber(versions.last());
    if (!isPremiereRunning()) {
        if (!shouldLaunch) {
            QVLog::appendLog(u"Error: Premiere Pro is not running.");
            return;
        }
        if (cancel.isCancelled())
            return;
        launchPremiere(number);
        cancel.waitFor(QVPremiereEvents::waits().launch);
    }
    if (cancel.isCancelled())
        return;
    const QString running = QVPremiere::runningPremiereVersion();
    const QString target = running.isNull() ? QStringLiteral("6.0") : running;
    Result<TransientFile> script = writeScript(QVPremiereEvents::scriptText(command, target));
    if (!script) {
        QVLog::appendLog(u"Unable to write script file to disk: %@", script.message());
        return;
    }
    runScript(script.value().path(), number, cancel);
    const Result<void> deleted = script.value().remove();
    if (!deleted)
        QVLog::appendLog(u"Error deleting script: %@", deleted.message());
}

/// The product version in an installation's configuration; nothing without one.
std::optional<QString> productVersion(const QString &installation)
{
    const auto configuration = XmlDocument::fromFile(
        installation + QStringLiteral("/Configuration/XManConfig.xml"), {false, nullptr});
    if (!configuration)
        return std::nullopt;
    return QVXMLParser::stringValueForQuery(
        QStringLiteral("./Configuration/VariableForExMan/Data[@key='ProductVersion']"),
        configuration.value()->node());
}

} // namespace

void QVPremiereEvents::createQeObject(const EventCancel &cancel)
{
    const QStringList versions = QVPremiere::premiereVersions();
    if (versions.isEmpty()) {
        QVLog::appendLog(u"Premiere Pro not found on this computer.");
        return;
    }
    bool isConfigured = false;
    for (const QString &version : versions) {
        const QString path = switchFilePath(version);
        if (QFileInfo::exists(path))
            continue;
        const Result<void> written = FileUtilities::writeAtomically(path, QByteArray());
        if (written)
            isConfigured = true;
        else
            QVLog::appendLog(u"Unable to create qe file: %@", written.message());
    }
    if (isConfigured && isPremiereRunning()) {
        showAlertUntil(QStringLiteral("Premiere Pro now configured"),
                       QStringLiteral("Please close and relaunch Adobe Premiere Pro in order to use it with "
                                      "this application."),
                       nullptr, nullptr, [&cancel] { return cancel.isCancelled(); });
    }
}

void QVPremiereEvents::executeScript(const QString &command, bool shouldLaunch, const EventCancel &cancel)
{
    guarded("+[QVPremiereEvents executeScript:shouldLaunch:]",
            [&] { execute(command, shouldLaunch, cancel); });
}

void QVPremiereEvents::openFCPXML(const QString &path, bool shouldLaunch, const EventCancel &cancel)
{
    executeScript(formatText(u"app.openFCPXML('%@')", path), shouldLaunch, cancel);
}

void QVPremiereEvents::exportFCPXML(const QString &path, bool shouldLaunch, const EventCancel &cancel)
{
    executeScript(formatText(u"app.project.exportFinalCutProXML('%@')", path), shouldLaunch, cancel);
    cancel.waitFor(waits().exported);
}

void QVPremiereEvents::openProject(const QString &path, bool shouldLaunch, const EventCancel &cancel)
{
    executeScript(formatText(u"app.openDocument('%@')", path), shouldLaunch, cancel);
}

QString QVPremiereEvents::scriptText(const QString &command, const QString &targetVersion)
{
    return formatText(u"#target \"premierepro-%@\"\n\n", targetVersion) +
           QStringLiteral("BridgeTalk.prototype.sendSync = function(timeout) {\nvar self = this;"
                          "self.onResult = function(res) {\nthis.result = res.body;\n"
                          "this.complete = true;\n}"
                          "self.complete = false;\nself.send();\n\n"
                          "if (timeout) {\nfor (var i = 0; i < timeout; i++) {\n"
                          "BridgeTalk.pump(); // process any outstanding messages\n"
                          "if (!self.complete) {\n$.sleep(1000);\n} else {\nbreak;\n}\n}\n}"
                          "\n\nvar res = self.result;\n"
                          "self.result = self.complete = self.onResult = undefined;\nreturn res;\n};") +
           formatText(u"var bt = new BridgeTalk;\nbt.target = \"premierepro-%@\"\n", targetVersion) +
           formatText(u"bt.body = \"%@\";", command) +
           QStringLiteral("bt.onResult = function(obj) {\n};\nbt.sendSync(90);");
}

QVPremiereEvents::Waits QVPremiereEvents::waits()
{
    const std::lock_guard lock(settings().mutex);
    return settings().waits;
}

void QVPremiereEvents::setWaits(const Waits &waits)
{
    const std::lock_guard lock(settings().mutex);
    settings().waits = waits;
}

void QVPremiereEvents::setOpenProgram(const QString &program)
{
    const std::lock_guard lock(settings().mutex);
    settings().openProgram = program;
}

QStringList QVPremiere::premiereVersions()
{
    const QString folder = Workspace::applicationsFolder();
    QStringList versions;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &entry : entries) {
        if (!entry.startsWith(QStringLiteral("Adobe Premiere "), Qt::CaseInsensitive))
            continue;
        if (const auto version = productVersion(folder + QLatin1Char('/') + entry))
            versions.append(*version);
    }
    return versions;
}

QString QVPremiere::runningPremiereVersion()
{
    for (const Workspace::RunningApplication &application : Workspace::runningApplications()) {
        if (application.bundleIdentifier != bundleIdentifier())
            continue;
        const QString contents = QFileInfo(QFileInfo(application.executablePath).path()).path();
        const Result<QVariant> information = PropertyList::fromFile(contents + QStringLiteral("/Info.plist"));
        QString version;
        if (information)
            version = information.value().toMap().value(QStringLiteral("CFBundleVersion")).toString();
        const QStringList components = version.split(QLatin1Char('.'));
        if (components.size() >= 2)
            return components[0] + QLatin1Char('.') + components[1];
        QVLog::appendLog(u"Unknown Premiere version.");
        return QString();
    }
    return QString();
}

QString QVPremiere::creativeSuiteNumber(const QString &version)
{
    return version.endsWith(QStringLiteral(".0")) ? version.chopped(2) : version;
}

} // namespace vantrell
