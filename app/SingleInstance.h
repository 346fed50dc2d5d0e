#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

namespace vantrell
{

/// Sees to it that one process of the program serves a user's session. The first one holds a lock and
/// listens on a local socket, both named after the session's display, in the runtime folder; what a process
/// that ended without a word left of them there counts for nothing. Without a runtime folder every process
/// is on its own. Main thread.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    SingleInstance();

    /// True when another process has taken the files over, or has been asked to show itself when there are
    /// none: this one may end. False when it is to open them itself: it is the first one, or the first one
    /// did not answer in `patience`. Once.
    bool passOn(const QStringList &paths, std::chrono::milliseconds patience = std::chrono::seconds(10));

Q_SIGNALS:
    /// Another process was started with these files, absolute paths, or without any.
    void filesPassed(const QStringList &paths);

private:
    void listen();
    void accept();
    bool send(const QStringList &paths, std::chrono::milliseconds patience) const;

    QString m_socketPath;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer m_server;
};

} // namespace vantrell
