#include "bridge/host/HostEvents.h"

#include "bridge/EventCodes.h"
#include "bridge/FileReference.h"
#include "bridge/host/HostMessages.h"
#include "xml/XmlText.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace vantrell
{

namespace
{

EventRecord refusal(std::int32_t number, const QString &message)
{
    hostMessage(message);
    EventRecord reply = EventRecord::errorReply(number);
    reply.setParameter(EventCode::ErrorText, EventDescriptor::fromUtf8(message.toUtf8()));
    return reply;
}

EventRecord notOpen()
{
    return refusal(HostError::noSuchObject, QStringLiteral("The event names no open project."));
}

EventRecord missing(FourCharCode keyword)
{
    return refusal(HostError::missingParameter,
                   QStringLiteral("The event has no usable parameter \"%1\".").arg(keyword.text()));
}

/// The reply that carries the text.
EventRecord textReply(const Result<QByteArray> &text, std::int32_t errorNumber)
{
    if (!text)
        return refusal(errorNumber, text.message());
    EventRecord reply = EventRecord::reply();
    reply.setParameter(EventCode::XmlData, EventDescriptor::fromUtf8(text.value()));
    return reply;
}

EventRecord outcomeReply(const Result<void> &outcome, std::int32_t errorNumber)
{
    return outcome ? EventRecord::reply() : refusal(errorNumber, outcome.message());
}

/// The identifier of the item; null without one.
QString identifierIn(const EventRecord &event)
{
    const EventDescriptor *value = event.parameter(EventCode::ItemIdentifier);
    const auto identifier = value ? value->toUtf8() : std::nullopt;
    return identifier ? QString::fromUtf8(*identifier) : QString();
}

/// The absolute path in `fcpU`, a path or file URL with percent escapes; the project's own path without that
/// parameter, null when it is invalid.
QString targetOf(const EventRecord &event, const HostProject &project)
{
    const EventDescriptor *value = event.parameter(EventCode::ProjectUrl);
    if (!value)
        return project.path();
    const auto url = value->toFileUrl();
    if (!url)
        return QString();
    const QString path = url->startsWith("file:") ? XmlText::pathOfUrl(QString::fromUtf8(*url))
                                                  : QString::fromUtf8(QByteArray::fromPercentEncoding(*url));
    return path.startsWith(QLatin1Char('/')) ? QDir::cleanPath(path) : QString();
}

QString pathOf(const EventDescriptor &value)
{
    const auto reference = value.toFileReference();
    return reference ? pathForFileReference(*reference).value_or(QString()) : QString();
}

} // namespace

EventRecord HostEvents::replyTo(const EventRecord &event)
{
    EventRecord reply = !m_failingEvent.isEmpty() && event.identifier.text() == m_failingEvent
                            ? EventRecord::errorReply(HostError::failed)
                            : handle(event);
    reply.returnId = event.returnId;
    reply.transaction = event.transaction;
    return reply;
}

struct HostEvents::Handler {
    FourCharCode eventClass;
    FourCharCode identifier;
    EventRecord (HostEvents::*handle)(const EventRecord &);
};

EventRecord HostEvents::handle(const EventRecord &event)
{
    static constexpr Handler handlers[] = {
        {EventCode::FinalCutPro, EventCode::ListOpenProjects, &HostEvents::listOpenProjects},
        {EventCode::FinalCutPro, EventCode::ImportXml, &HostEvents::importXml},
        {EventCode::FinalCutPro, EventCode::ExportProjectXml, &HostEvents::exportProject},
        {EventCode::FinalCutPro, EventCode::ExportItemXml, &HostEvents::exportItem},
        {EventCode::FinalCutPro, EventCode::ExportContents, &HostEvents::exportContents},
        {EventCode::FinalCutPro, EventCode::OpenItem, &HostEvents::openItem},
        {EventCode::FinalCutPro, EventCode::SaveProject, &HostEvents::saveProject},
        {EventCode::FinalCutPro, EventCode::CloseProject, &HostEvents::closeProject},
        {EventCode::CoreClass, EventCode::OpenDocuments, &HostEvents::openDocuments}};
    const auto handler = std::find_if(std::begin(handlers), std::end(handlers), [&](const Handler &entry) {
        return entry.eventClass == event.eventClass && entry.identifier == event.identifier;
    });
    if (handler != std::end(handlers))
        return (this->*handler->handle)(event);
    return refusal(EventError::EventNotHandled, QStringLiteral("There is no event \"%1\" of class \"%2\".")
                                                    .arg(event.identifier.text(), event.eventClass.text()));
}

EventRecord HostEvents::listOpenProjects(const EventRecord &)
{
    std::vector<EventDescriptor> projects;
    for (const auto &project : m_projects.allOpen()) {
        if (auto reference = fileReferenceForPath(project->path())) {
            projects.push_back(EventDescriptor::fromRecord(
                {{EventCode::ProjectFile, EventDescriptor::fromFileReference(*std::move(reference))}}));
        }
    }
    EventRecord reply = EventRecord::reply();
    reply.setParameter(EventCode::OpenProjects, EventDescriptor::fromList(std::move(projects)));
    return reply;
}

EventRecord HostEvents::importXml(const EventRecord &event)
{
    const EventDescriptor *data = event.parameter(EventCode::XmlData);
    const auto xml = data ? data->toUtf8() : std::nullopt;
    if (!xml)
        return missing(EventCode::XmlData);
    const Result<ImportedXml> imported = ImportedXml::read(*xml, m_maximumVersion);
    if (!imported)
        return refusal(HostError::failed, imported.message());

    std::shared_ptr<HostProject> project = projectOf(event);
    const bool isNew = !project;
    if (isNew) {
        const auto made = m_projects.makeNew(m_maximumVersion);
        if (!made)
            return refusal(HostError::fileNotSaved, made.message());
        project = made.value();
    }
    const Result<void> added = project->add(imported.value());
    if (!added) {
        if (isNew)
            m_projects.discard(project);
        return refusal(HostError::fileNotSaved, added.message());
    }
    return EventRecord::reply();
}

EventRecord HostEvents::exportProject(const EventRecord &event)
{
    const auto project = projectOf(event);
    return project ? textReply(project->xml(), HostError::failed) : notOpen();
}

EventRecord HostEvents::exportItem(const EventRecord &event)
{
    const auto project = projectOf(event);
    const QString identifier = identifierIn(event);
    if (identifier.isNull())
        return missing(EventCode::ItemIdentifier);
    return project ? textReply(project->itemXml(identifier), HostError::noSuchObject) : notOpen();
}

EventRecord HostEvents::exportContents(const EventRecord &event)
{
    const auto project = projectOf(event);
    return project ? textReply(project->tableOfContents(), HostError::failed) : notOpen();
}

EventRecord HostEvents::openItem(const EventRecord &event)
{
    const auto project = projectOf(event);
    const QString identifier = identifierIn(event);
    if (identifier.isNull())
        return missing(EventCode::ItemIdentifier);
    if (!project)
        return notOpen();
    const Result<QString> name = project->itemName(identifier);
    if (!name)
        return refusal(HostError::noSuchObject, name.message());
    hostMessage(QStringLiteral("opened the item \"%1\" of \"%2\"").arg(name.value(), project->path()));
    return EventRecord::reply();
}

EventRecord HostEvents::saveProject(const EventRecord &event)
{
    const auto project = projectOf(event);
    if (!project)
        return notOpen();
    const QString target = targetOf(event, *project);
    if (target.isEmpty())
        return missing(EventCode::ProjectUrl);
    const EventDescriptor *overwrite = event.parameter(EventCode::Overwrite);
    if (QFileInfo::exists(target) && !(overwrite && overwrite->toBool().value_or(false))) {
        return refusal(HostError::fileExists,
                       QStringLiteral("The file \"%1\" is there and is not to be overwritten.").arg(target));
    }
    return outcomeReply(project->save(target), HostError::fileNotSaved);
}

EventRecord HostEvents::closeProject(const EventRecord &event)
{
    const auto project = projectOf(event);
    if (!project)
        return notOpen();
    const EventDescriptor *discard = event.parameter(EventCode::DiscardChanges);
    if (discard && discard->toInteger().value_or(0) != 0)
        return outcomeReply(project->close(), HostError::failed);
    const QString target = targetOf(event, *project);
    if (target.isEmpty())
        return missing(EventCode::ProjectUrl);
    return outcomeReply(project->close(target), HostError::fileNotSaved);
}

EventRecord HostEvents::openDocuments(const EventRecord &event)
{
    const EventDescriptor *files = event.parameter(EventCode::DirectObject);
    if (!files || (!files->isList() && !files->toFileReference()))
        return missing(EventCode::DirectObject);
    const std::vector<EventDescriptor> single =
        files->isList() ? std::vector<EventDescriptor>() : std::vector{*files};
    EventRecord reply = EventRecord::reply();
    for (const EventDescriptor &file : files->isList() ? files->items() : single) {
        const QString path = pathOf(file);
        if (path.isEmpty()) {
            reply = refusal(HostError::failed, QStringLiteral("A file to open is not there."));
        } else if (const Result<void> opened = m_projects.open(path); !opened) {
            reply = refusal(HostError::failed, opened.message());
        }
    }
    return reply;
}

std::shared_ptr<HostProject> HostEvents::projectOf(const EventRecord &event) const
{
    const EventDescriptor *value = event.parameter(EventCode::Project);
    const auto reference = value ? value->toFileReference() : std::nullopt;
    // Another import may have replaced the file since the reference was made; it is still the same project.
    const auto path = reference ? pathInFileReference(*reference) : std::nullopt;
    return path ? m_projects.openAt(*path) : nullptr;
}

} // namespace vantrell
