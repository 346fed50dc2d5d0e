#include "support/desktop/FileBrowser.h"

#include "support/log/QVException.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

namespace vantrell
{

namespace
{

/// Without this test the bus library would try to start a bus of its own.
bool hasSessionBus()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus"));
}

bool callFileManager(const QString &uri)
{
    static std::atomic<int> calls{0};
    const QString name = QStringLiteral("vantrell-file-browser-%1").arg(++calls);
    bool isAnswered = false;
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        if (bus.isConnected()) {
            QDBusMessage message = QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.FileManager1"),
                QStringLiteral("/org/freedesktop/FileManager1"),
                QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
            message << QStringList{uri} << QString();
            isAnswered =
                bus.call(message, QDBus::Block, FileBrowser::TimeoutMs).type() == QDBusMessage::ReplyMessage;
        }
    }
    QDBusConnection::disconnectFromBus(name);
    return isAnswered;
}

} // namespace

bool FileBrowser::showItem(const QString &path)
{
    if (!QCoreApplication::instance() || !hasSessionBus())
        return false;
    struct Call {
        std::mutex mutex; // guards the rest
        std::condition_variable changed;
        bool hasEnded = false;
        bool isAnswered = false;
    };
    const auto call = std::make_shared<Call>();
    const QString uri = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    try {
        // On a thread that can be left behind: connecting to a bus that hangs has no time-out.
        std::thread([call, uri] {
            bool isAnswered = false;
            guarded("FileBrowser::showItem", [&] { isAnswered = callFileManager(uri); });
            const std::lock_guard lock(call->mutex);
            call->isAnswered = isAnswered;
            call->hasEnded = true;
            call->changed.notify_all();
        }).detach();
    } catch (const std::system_error &) {
        return false;
    }
    std::unique_lock lock(call->mutex);
    call->changed.wait_for(lock, std::chrono::milliseconds(TimeoutMs), [&] { return call->hasEnded; });
    return call->isAnswered;
}

} // namespace vantrell
