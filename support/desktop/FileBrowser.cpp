#include "support/desktop/FileBrowser.h"

#include "support/log/QVException.h"
#include "support/threads/BackgroundWork.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>

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
    const auto isAnswered = std::make_shared<std::promise<bool>>();
    const QString uri = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    std::future<bool> answer = isAnswered->get_future();
    // On a thread that can be left behind: connecting to a bus that hangs has no time-out.
    BackgroundWork::run([isAnswered, uri] {
        bool hasShown = false;
        guarded("FileBrowser::showItem", [&] { hasShown = callFileManager(uri); });
        isAnswered->set_value(hasShown);
    });
    const bool hasEnded = answer.wait_for(std::chrono::milliseconds(TimeoutMs)) == std::future_status::ready;
    return hasEnded && answer.get();
}

} // namespace vantrell
