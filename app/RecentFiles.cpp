#include "app/RecentFiles.h"

#include "support/UserDefaults.h"

#include <QFileInfo>

namespace vantrell
{

namespace
{

const QString recentFilesKey = QStringLiteral("recentFiles");

} // namespace

RecentFiles::RecentFiles(UserDefaults &defaults)
    : m_defaults(defaults)
{
    connect(&m_defaults, &UserDefaults::changed, this, [this](const QString &key) {
        if (key == recentFilesKey)
            Q_EMIT changed();
    });
}

QStringList RecentFiles::paths() const
{
    return m_defaults.value(recentFilesKey).toStringList().mid(0, maximum);
}

void RecentFiles::add(const QString &path)
{
    QStringList list = paths();
    if (list.value(0) == path)
        return;
    list.removeAll(path);
    list.prepend(path);
    m_defaults.setValue(recentFilesKey, PropertyListValue(list.mid(0, maximum)));
}

void RecentFiles::forgetIfGone(const QString &path)
{
    const QFileInfo file(path);
    if (file.exists() || !QFileInfo::exists(file.path()))
        return;
    QStringList list = paths();
    if (list.removeAll(path) > 0)
        m_defaults.setValue(recentFilesKey, PropertyListValue(list));
}

void RecentFiles::clear()
{
    m_defaults.removeValue(recentFilesKey);
}

} // namespace vantrell
