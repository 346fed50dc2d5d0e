#include "support/files/FolderWatcher.h"

#include <QFileInfo>

#include <utility>

namespace vantrell
{

namespace
{

constexpr int settlingMs = 100;

QString nearestExisting(QString folder)
{
    while (!QFileInfo(folder).isDir() && folder.size() > 1)
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

FolderWatcher::FolderWatcher(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingMs);
    look();
    m_settling.stop();
    connect(&m_settling, &QTimer::timeout, this, &FolderWatcher::changed);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FolderWatcher::look);
}

void FolderWatcher::look()
{
    // Folders may be made while the watch moves down to them.
    for (QString nearest = nearestExisting(m_folder); !m_watcher.directories().contains(nearest);
         nearest = nearestExisting(m_folder)) {
        if (const QStringList watched = m_watcher.directories(); !watched.isEmpty())
            m_watcher.removePaths(watched);
        if (!m_watcher.addPath(nearest))
            break;
    }
    const bool existed = std::exchange(m_exists, QFileInfo(m_folder).isDir());
    if ((existed || m_exists) && !m_settling.isActive())
        m_settling.start();
}

} // namespace vantrell
