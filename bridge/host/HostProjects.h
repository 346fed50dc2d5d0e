#pragma once

#include "bridge/host/HostProject.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace vantrell
{

/// The projects that the host knows, open or closed, in the order in which it came to know them. Any
/// thread; nothing but open() waits for an operation on a project.
class HostProjects
{
public:
    /// New projects go beside the first one known; without one they go to \a folder.
    explicit HostProjects(const QString &folder);

    /// Gets to know a project, which stays closed when it was not open.
    void add(const QString &path) { at(path); }
    /// Opens the project of that file, known or not. Returns when it is open.
    Result<void> open(const QString &path);
    /// The open project of that file; null when there is none.
    std::shared_ptr<HostProject> openAt(const QString &path) const;
    std::vector<std::shared_ptr<HostProject>> allOpen() const;

    /// A new empty open project "Vantrell.xml", "Vantrell 2.xml" and so on. Its file is made, still empty.
    Result<std::shared_ptr<HostProject>> makeNew(std::int64_t xmemlVersion);
    /// Forgets a new project that came to nothing, and removes its file.
    void discard(const std::shared_ptr<HostProject> &project);

private:
    std::shared_ptr<HostProject> at(const QString &path);
    std::shared_ptr<HostProject> find(const QString &path) const; // with the mutex held

    const QString m_folder;
    mutable std::mutex m_mutex; // guards the list
    std::vector<std::shared_ptr<HostProject>> m_projects;
};

} // namespace vantrell
