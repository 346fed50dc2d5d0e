#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace vantrell
{

/// Watches the names in one folder, which need not be there yet: until it is, the nearest folder above it
/// that exists is watched. Main thread, with an event loop.
class FolderWatcher : public QObject
{
    Q_OBJECT

public:
    explicit FolderWatcher(const QString &folder, QObject *parent = nullptr);

Q_SIGNALS:
    /// Files came, went or took another one's place, or the folder itself came or went. Several changes
    /// within a short while are told once.
    void changed();

private:
    void look();

    QString m_folder;
    bool m_exists = false; // when it was last looked for
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
};

} // namespace vantrell
