#include "bridge/host/HostProjects.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace vantrell
{

namespace
{

/// The file's path with links resolved; as it is when there is no such file.
QString resolved(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

} // namespace

HostProjects::HostProjects(const QString &folder)
    : m_folder(folder)
{
}

Result<void> HostProjects::open(const QString &path)
{
    return at(path)->open();
}

std::shared_ptr<HostProject> HostProjects::openAt(const QString &path) const
{
    const std::lock_guard lock(m_mutex);
    auto known = find(path);
    return known && known->isOpen() ? known : nullptr;
}

std::vector<std::shared_ptr<HostProject>> HostProjects::allOpen() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::shared_ptr<HostProject>> projects;
    std::copy_if(m_projects.begin(), m_projects.end(), std::back_inserter(projects),
                 [](const auto &project) { return project->isOpen(); });
    return projects;
}

Result<std::shared_ptr<HostProject>> HostProjects::makeNew(std::int64_t xmemlVersion)
{
    const std::lock_guard lock(m_mutex);
    const QString folder = m_projects.empty() ? m_folder : QFileInfo(m_projects.front()->path()).path();
    QFile file(folder + QStringLiteral("/Vantrell.xml"));
    for (int number = 2; find(file.fileName()) || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
         ++number) {
        // Skip names of existing files and of open projects whose file is gone.
        if (!find(file.fileName()) && !QFileInfo::exists(file.fileName())) {
            return Failure{QStringLiteral("The file \"%1\" could not be made: %2.")
                               .arg(file.fileName(), file.errorString())};
        }
        file.setFileName(folder + QStringLiteral("/Vantrell %1.xml").arg(number));
    }
    auto project = std::make_shared<HostProject>(file.fileName());
    if (const Result<void> opened = project->openEmpty(xmemlVersion); !opened)
        return opened.failure();
    m_projects.push_back(project);
    return project;
}

void HostProjects::discard(const std::shared_ptr<HostProject> &project)
{
    const std::lock_guard lock(m_mutex);
    std::erase(m_projects, project);
    QFile::remove(project->path());
}

std::shared_ptr<HostProject> HostProjects::at(const QString &path)
{
    const std::lock_guard lock(m_mutex);
    if (auto known = find(path))
        return known;
    return m_projects.emplace_back(std::make_shared<HostProject>(path));
}

std::shared_ptr<HostProject> HostProjects::find(const QString &path) const
{
    const QString wanted = resolved(path);
    const auto found = std::find_if(m_projects.begin(), m_projects.end(), [&](const auto &project) {
        return project->path() == path || resolved(project->path()) == wanted;
    });
    return found == m_projects.end() ? nullptr : *found;
}

} // namespace vantrell
