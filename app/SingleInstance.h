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

/// Ensures that one process of the program serves a user's session. The first process holds a lock and
/// listens on a local socket in the runtime folder, both named after the session's display; those that a
/// crashed process left behind are ignored. Without a runtime folder each process is independent. Main
/// thread.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    SingleInstance();

    /// True when another process has accepted the files, or a request to come to the front without files:
    /// this process may exit. False when this process is the first, or the first did not answer within
    /// `patience`. Called once.
    bool passOn(const QStringList &paths, std::chrono::milliseconds patience = std::chrono::seconds(10));

Q_SIGNALS:
    /// Another process was started with these files (absolute paths), or without any.
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
