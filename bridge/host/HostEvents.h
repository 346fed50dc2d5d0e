#pragma once

#include "bridge/EventRecord.h"
#include "bridge/host/HostProject.h"

#include <QString>

#include <cstdint>

namespace vantrell
{

/// Error numbers of the host, in addition to those of EventError.
namespace HostError
{
inline constexpr std::int32_t fileNotSaved = -36;
inline constexpr std::int32_t fileExists = -48;
inline constexpr std::int32_t missingParameter = -1701;
inline constexpr std::int32_t noSuchObject = -1728; ///< no such open project, or no such item in it
inline constexpr std::int32_t failed = -10000;
} // namespace HostError

/// Handles events and creates their replies. Errors are reported on standard error, and as the number `errn`
/// and the text `errs` of the reply. Any thread.
class HostEvents
{
public:
    /// The projects outlive this object. Imports of versions beyond \a maximumXmemlVersion are refused.
    HostEvents(HostProjects &projects, std::int64_t maximumXmemlVersion)
        : m_projects(projects)
        , m_maximumVersion(maximumXmemlVersion)
    {
    }

    /// From now on every event with that identifier fails; empty for none.
    void setFailingEvent(const QString &identifier) { m_failingEvent = identifier; }

    EventRecord replyTo(const EventRecord &event);

private:
    struct Handler;
    EventRecord handle(const EventRecord &event);
    EventRecord listOpenProjects(const EventRecord &event);
    EventRecord importXml(const EventRecord &event);
    EventRecord exportProject(const EventRecord &event);
    EventRecord exportItem(const EventRecord &event);
    EventRecord exportContents(const EventRecord &event);
    EventRecord openItem(const EventRecord &event);
    EventRecord saveProject(const EventRecord &event);
    EventRecord closeProject(const EventRecord &event);
    EventRecord openDocuments(const EventRecord &event);

    /// The open project that `fcpP` refers to; null when there is none.
    std::shared_ptr<HostProject> projectOf(const EventRecord &event) const;

    HostProjects &m_projects;
    const std::int64_t m_maximumVersion;
    QString m_failingEvent; // set before any thread is started
};

} // namespace vantrell
