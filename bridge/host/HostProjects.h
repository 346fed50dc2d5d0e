#pragma once

#include "bridge/host/HostProject.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace vantrell
{

/// The projects of the host, open or closed, in the order in which they were added. Any thread; only open()
/// waits for an operation on a project.
class HostProjects
{
public:
    /// New projects are created beside the first known one, or in \a folder without one.
    explicit HostProjects(const QString &folder);

    /// Adds a project, closed, unless it is known.
    void add(const QString &path) { at(path); }
    /// Opens the project of that file, adding it if necessary. Blocks until it is open.
    Result<void> open(const QString &path);
    /// The open project of that file; null without one.
    std::shared_ptr<HostProject> openAt(const QString &path) const;
    std::vector<std::shared_ptr<HostProject>> allOpen() const;

    /// Creates an empty open project "Vantrell.xml", "Vantrell 2.xml" and so on, and its file, still empty.
    Result<std::shared_ptr<HostProject>> makeNew(std::int64_t xmemlVersion);
    /// Removes a new project whose import failed, and its file.
    void discard(const std::shared_ptr<HostProject> &project);

private:
    std::shared_ptr<HostProject> at(const QString &path);
    std::shared_ptr<HostProject> find(const QString &path) const; // with the mutex held

    const QString m_folder;
    mutable std::mutex m_mutex; // guards the list
    std::vector<std::shared_ptr<HostProject>> m_projects;
};

} // namespace vantrell
