// The operations of QVAppleEvents that talk to Final Cut Pro.

#include "bridge/EventCodes.h"
#include "bridge/EventExchange.h"
#include "bridge/FileReference.h"
#include "bridge/QVAppleEvents.h"
#include "bridge/SocketEventTransport.h"
#include "support/desktop/Workspace.h"
#include "support/log/QVException.h"
#include "support/text/TextFormat.h"
#include "xml/XmlQuery.h"
#include "xml/XmlReferences.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace vantrell
{

namespace
{

constexpr std::int32_t ImportTimeout = 36000; // ticks
constexpr std::chrono::milliseconds PollInterval(200);

constexpr QStringView CannotAddProject = u"Error adding project file to AppleEvent query";
constexpr QStringView CannotAddDestination = u"Error adding destination project file to AppleEvent query";
constexpr QStringView CannotAddSource = u"Error adding source project file to AppleEvent query";
constexpr QStringView CannotAddFlag = u"Error adding overwrite flag to AppleEvent query";

EventDescriptor projectUrl(const QString &path)
{
    return EventDescriptor::fromFileUrl(QUrl::toPercentEncoding(path, "/!$&'()*+,;=:@"));
}

/// The open projects in a reply whose files exist.
QStringList openProjectsIn(const EventRecord &reply)
{
    QStringList paths;
    const EventDescriptor *list = reply.parameter(EventCode::OpenProjects);
    if (!list)
        return paths;
    for (const EventDescriptor &item : list->items()) {
        const EventDescriptor *file = item.field(EventCode::ProjectFile);
        const auto reference = file ? file->toFileReference() : std::nullopt;
        if (const auto path = reference ? pathForFileReference(*reference) : std::nullopt)
            paths.append(*path);
    }
    return paths;
}

bool contains(const QStringList &paths, const QString &path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return std::any_of(paths.begin(), paths.end(), [&](const QString &other) {
        return other == path || (!file.isEmpty() && QFileInfo(other).canonicalFilePath() == file);
    });
}

/// Requests opening the project, launching the application if need be; returns whether that succeeded.
bool requestOpening(const QString &path)
{
    return Workspace::openWithApplication(QVAppleEvents::finalCutProIdentifier(), path);
}

/// Waits until the project is open, no longer than an event may take.
void waitUntilOpen(const QString &path, const EventCancel &cancel)
{
    const QDeadlineTimer deadline(sharedEventTransport()->systemTimeout());
    do {
        EventExchange exchange(EventCode::ListOpenProjects, cancel);
        exchange.silence();
        const auto reply = exchange.send();
        if (reply && contains(openProjectsIn(*reply), path))
            return;
    } while (!cancel.waitFor(PollInterval) && !deadline.hasExpired());
}

/// The text in a reply.
std::optional<QByteArray> xmlDataIn(EventRecord reply)
{
    std::optional<EventDescriptor> value = reply.takeParameter(EventCode::XmlData);
    if (!value) {
        reportEventFailure(QStringLiteral("Error getting XML information"));
        return {};
    }
    std::optional<QByteArray> data = value->toUtf8();
    if (!data) {
        reportEventFailure(QStringLiteral("Error retrieving XML data"));
        return {};
    }
    value.reset(); // so that the bytes are not shared and can be shortened in place
    return QVAppleEvents::formatData(std::move(*data));
}

/// The request of an operation that gets XML.
struct XmlRequest {
    FourCharCode event;
    QString project;
    std::optional<QString> item;
    bool launch = false;
    bool close = false;
};

std::optional<QByteArray> fetchXml(const XmlRequest &request, const EventCancel &cancel)
{
    EventExchange exchange(request.event, cancel);
    using Unreferred = EventExchange::Unreferred;
    const bool isOptional = request.event == EventCode::ExportProjectXml;
    exchange.addFile(EventCode::Project, request.project, CannotAddProject,
                     isOptional ? Unreferred::IsLeftOut : Unreferred::Fails);
    if (request.item)
        exchange.add(EventCode::ItemIdentifier, EventDescriptor::fromUtf8(request.item->toUtf8()),
                     CannotAddDestination);
    auto reply = exchange.send();
    return reply ? xmlDataIn(std::move(*reply)) : std::nullopt;
}

/// Has the project opened where the request allows it. Nothing when its XML cannot be requested, else whether
/// it was open before.
std::optional<bool> findProject(const XmlRequest &request, const EventCancel &cancel)
{
    const bool wasRunning = QVAppleEvents::isFCPRunning();
    if (!wasRunning && !request.launch)
        return {};
    bool wasRequested = !wasRunning && requestOpening(request.project);
    const QStringList open = QVAppleEvents::listOfOpenFCPProjects(cancel).value_or(QStringList());
    if (contains(open, request.project))
        return wasRunning; // else it has just been opened
    if (request.launch) {
        wasRequested = requestOpening(request.project) || wasRequested;
        if (wasRequested)
            waitUntilOpen(request.project, cancel);
    } else if (request.event != EventCode::ExportContents) {
        reportEventFailure(QStringLiteral("Error: project is not open."));
        return {};
    }
    return false;
}

std::optional<QByteArray> exportXml(const char *method, const XmlRequest &request, const EventCancel &cancel)
{
    std::optional<QByteArray> data;
    std::optional<bool> wasOpen;
    guarded(method, [&] {
        wasOpen = findProject(request, cancel);
        if (wasOpen)
            data = fetchXml(request, cancel);
    });
    if (!data)
        reportEventFailure(
            QStringLiteral("Unable to communicate with Final Cut Pro. Please make sure it is running."));
    if (request.close && wasOpen == false)
        QVAppleEvents::closeProject(request.project, true, cancel);
    return data;
}

std::optional<QString> textOf(const std::optional<QByteArray> &data)
{
    return data ? std::optional(QString::fromUtf8(*data)) : std::nullopt;
}

bool importXml(QByteArray escapedXml, const QString &projectPath, const EventCancel &cancel)
{
    EventExchange exchange(EventCode::ImportXml, cancel,
                           {u"Error creating AEDescription: %ld", u"Error creating AppleEvent: %ld",
                            u"Error sending AppleEvent: %ld"});
    exchange.setTimeout(ImportTimeout);
    exchange.addFile(EventCode::Project, projectPath, u"Error creating project FSRef: %ld",
                     EventExchange::Unreferred::IsLeftOut);
    exchange.add(EventCode::XmlData, EventDescriptor::fromUtf8(std::move(escapedXml)),
                 u"Error adding XML data to event: %ld");
    return exchange.send().has_value();
}

/// Whether Final Cut Pro is running; if not, the system log says so.
bool checkRunning()
{
    const bool isRunning = QVAppleEvents::isFCPRunning();
    if (!isRunning)
        reportEventFailure(QStringLiteral("Error: Final Cut Pro is not running."));
    return isRunning;
}

std::optional<ProjectSequences> sequencesIn(QByteArray xml)
{
    auto document = XmlDocument::fromData(XmlReferences::joinedSurrogates(std::move(xml)), {false, nullptr});
    if (!document) {
        reportEventFailure(formatText(u"Error: %@", document.message()));
        return {};
    }
    const auto answer =
        XmlQuery::compiled(QStringLiteral(".//sequence/name[1]/.."))->evaluate(document.value()->node());
    if (!answer.error.isEmpty()) {
        reportEventFailure(formatText(u"Error: %@", answer.error));
        return {};
    }
    return ProjectSequences{std::move(document.value()), answer.nodes};
}

} // namespace

bool QVAppleEvents::isFCPRunning()
{
    return Workspace::isRunning(finalCutProIdentifier());
}

std::optional<QStringList> QVAppleEvents::listOfOpenFCPProjects(const EventCancel &cancel)
{
    std::optional<QStringList> paths;
    guarded("QVAppleEvents::listOfOpenFCPProjects", [&] {
        if (!checkRunning())
            return;
        EventExchange exchange(EventCode::ListOpenProjects, cancel);
        const auto reply = exchange.send();
        paths = reply ? openProjectsIn(*reply) : QStringList();
    });
    return paths;
}

bool QVAppleEvents::sendXMLToFCP(const QString &xml, const QString &projectPath, const EventCancel &cancel)
{
    bool wasSent = false;
    guarded("QVAppleEvents::sendXMLToFCP",
            [&] { wasSent = importXml(escapedXml(xml), projectPath, cancel); });
    return wasSent;
}

bool QVAppleEvents::sendEscapedXMLToFCP(QByteArray escapedXml, const QString &projectPath,
                                        const EventCancel &cancel)
{
    bool wasSent = false;
    guarded("QVAppleEvents::sendEscapedXMLToFCP",
            [&] { wasSent = importXml(std::move(escapedXml), projectPath, cancel); });
    return wasSent;
}

std::optional<QByteArray> QVAppleEvents::getProjectXMLData(const QString &path, bool launchFCP,
                                                           bool closeProject, const EventCancel &cancel)
{
    return exportXml("QVAppleEvents::getProjectXMLData",
                     {EventCode::ExportProjectXml, path, {}, launchFCP, closeProject}, cancel);
}

std::optional<QString> QVAppleEvents::getProjectXML(const QString &path, bool launchFCP, bool closeProject,
                                                    const EventCancel &cancel)
{
    return textOf(getProjectXMLData(path, launchFCP, closeProject, cancel));
}

std::optional<QByteArray> QVAppleEvents::getItemXMLData(const QString &item, const QString &project,
                                                        bool launchFCP, bool closeProject,
                                                        const EventCancel &cancel)
{
    return exportXml("QVAppleEvents::getItemXMLData",
                     {EventCode::ExportItemXml, project, item, launchFCP, closeProject}, cancel);
}

std::optional<QString> QVAppleEvents::getItemXML(const QString &item, const QString &project, bool launchFCP,
                                                 bool closeProject, const EventCancel &cancel)
{
    return textOf(getItemXMLData(item, project, launchFCP, closeProject, cancel));
}

std::optional<QByteArray> QVAppleEvents::getTOCData(const QString &path, bool launchFCP,
                                                    const EventCancel &cancel)
{
    return exportXml("QVAppleEvents::getTOCData", {EventCode::ExportContents, path, {}, launchFCP, false},
                     cancel);
}

std::optional<QString> QVAppleEvents::getTOC(const QString &path, bool launchFCP, const EventCancel &cancel)
{
    return textOf(getTOCData(path, launchFCP, cancel));
}

std::optional<ProjectSequences> QVAppleEvents::sequencesInProject(const QString &path,
                                                                  const EventCancel &cancel)
{
    std::optional<ProjectSequences> sequences;
    guarded("QVAppleEvents::sequencesInProject", [&] {
        auto data = finalCutProMajorVersion() < 7 ? getProjectXMLData(path, true, false, cancel)
                                                  : getTOCData(path, true, cancel);
        if (data && !data->isEmpty())
            sequences = sequencesIn(std::move(*data));
    });
    return sequences;
}

void QVAppleEvents::openItem(const QString &item, const QString &project, bool launchFCP,
                             const EventCancel &cancel)
{
    guarded("QVAppleEvents::openItem", [&] {
        if (!isFCPRunning()) {
            if (!launchFCP)
                return;
            if (requestOpening(project))
                waitUntilOpen(project, cancel);
        }
        EventExchange exchange(EventCode::OpenItem, cancel);
        exchange.addFile(EventCode::Project, project, CannotAddProject);
        exchange.add(EventCode::ItemIdentifier, EventDescriptor::fromUtf8(item.toUtf8()),
                     CannotAddDestination);
        exchange.send();
    });
}

bool QVAppleEvents::saveProject(const QString &path, const EventCancel &cancel)
{
    bool wasSaved = false;
    guarded("QVAppleEvents::saveProject", [&] {
        if (!checkRunning())
            return;
        EventExchange exchange(EventCode::SaveProject, cancel);
        exchange.addFile(EventCode::Project, path, CannotAddSource);
        exchange.add(EventCode::ProjectUrl, projectUrl(path), CannotAddDestination);
        exchange.add(EventCode::Overwrite, EventDescriptor::fromBool(true), CannotAddFlag);
        wasSaved = exchange.send().has_value();
    });
    return wasSaved;
}

void QVAppleEvents::closeProject(const QString &path, bool saveChanges, const EventCancel &cancel)
{
    guarded("QVAppleEvents::closeProject", [&] {
        if (!checkRunning())
            return;
        EventExchange exchange(EventCode::CloseProject, cancel);
        exchange.addFile(EventCode::Project, path, CannotAddSource);
        exchange.add(EventCode::ProjectUrl, projectUrl(path), CannotAddDestination);
        exchange.add(EventCode::DiscardChanges, EventDescriptor::fromInteger(saveChanges ? 0 : 1),
                     CannotAddFlag);
        exchange.send();
    });
}

} // namespace vantrell
