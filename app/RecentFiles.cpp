#include "app/RecentFiles.h"

#include "media/AnswerWithin.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/MainThread.h"

#include <QFileInfo>
#include <QPointer>

namespace vantrell
{

namespace
{

const QString recentFilesKey = QStringLiteral("recentFiles");
const QString recentProjectsKey = QStringLiteral("recentFCPProjects"); // a subset of the recent files

} // namespace

RecentFiles::RecentFiles(UserDefaults &defaults)
    : m_defaults(defaults)
{
    connect(&m_defaults, &UserDefaults::changed, this, [this](const QString &key) {
        if (key == recentFilesKey || key == recentProjectsKey)
            Q_EMIT changed();
    });
}

QStringList RecentFiles::paths() const
{
    return m_defaults.value(recentFilesKey).toStringList().mid(0, maximum);
}

QStringList RecentFiles::projects() const
{
    return m_defaults.value(recentProjectsKey).toStringList();
}

bool RecentFiles::isFCPProject(const QString &path) const
{
    return projects().contains(path);
}

void RecentFiles::add(const QString &path, bool isFCPProject)
{
    QStringList list = paths();
    QStringList fetched = projects();
    list.removeAll(path);
    list.prepend(path);
    fetched.removeAll(path);
    if (isFCPProject)
        fetched.append(path);
    store(list.mid(0, maximum), fetched);
}

/// Stores only what has changed, as every window is notified.
void RecentFiles::store(const QStringList &paths, const QStringList &projects)
{
    QStringList listed;
    for (const QString &path : projects) {
        if (paths.contains(path))
            listed.append(path);
    }
    if (listed != this->projects())
        m_defaults.setValue(recentProjectsKey, QVariant(listed));
    if (paths != this->paths())
        m_defaults.setValue(recentFilesKey, QVariant(paths));
}

void RecentFiles::forgetIfGone(const QString &path)
{
    const auto isGone = [path] {
        const QFileInfo file(path);
        return !file.exists() && QFileInfo::exists(file.path());
    };
    const auto forget = [list = QPointer(this), path](const bool &gone) {
        if (list && gone)
            list->forget(path);
    };
    const auto late = [forget](const bool &gone) { MainThread::post([forget, gone] { forget(gone); }); };
    forget(answerWithin<bool>(mainThreadPatience, isGone, late).value_or(false));
}

void RecentFiles::forget(const QString &path)
{
    QStringList list = paths();
    if (list.removeAll(path) > 0)
        store(list, projects());
}

void RecentFiles::clear()
{
    m_defaults.removeValue(recentProjectsKey);
    m_defaults.removeValue(recentFilesKey);
}

} // namespace vantrell
