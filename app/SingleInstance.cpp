#include "app/SingleInstance.h"

#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>

namespace vantrell
{

namespace
{

constexpr quint32 protocol = 0x56540001;
constexpr char taken = 'k';
constexpr unsigned long retryMs = 50;

/// The name of the session's display as part of a file name.
QString sessionName()
{
    QString name = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (name.isEmpty())
        name = qEnvironmentVariable("DISPLAY").section(QLatin1Char('.'), 0, 0); // without the screen
    for (QChar &character : name) {
        if (!character.isLetterOrNumber() && character != QLatin1Char('-'))
            character = QLatin1Char('_');
    }
    return name;
}

} // namespace

SingleInstance::SingleInstance()
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
}

bool SingleInstance::passOn(const QStringList &paths, std::chrono::milliseconds patience)
{
    const QString folder = StandardFolders::runtime();
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return false;
    const QString base = folder + QStringLiteral("/program") + sessionName();
    m_socketPath = base + QStringLiteral(".socket");
    m_lock = std::make_unique<QLockFile>(base + QStringLiteral(".lock"));
    m_lock->setStaleLockTime(0); // stale once its process has ended, however old it is
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (m_lock->tryLock(0)) {
            listen();
            return false;
        }
        // The first process may just be starting or ending.
        const bool isHeld = m_lock->error() == QLockFile::LockFailedError;
        if (isHeld && send(paths, std::chrono::milliseconds(deadline.remainingTime())))
            return true;
        if (!isHeld || deadline.hasExpired())
            return false;
        QThread::msleep(retryMs);
    }
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(m_socketPath);
    if (!m_server.listen(m_socketPath))
        QVLog::appendLog(u"Files of other starts will not come here: %@", m_server.errorString());
}

bool SingleInstance::send(const QStringList &paths, std::chrono::milliseconds patience) const
{
    const int limit = int(patience.count());
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(limit))
        return false;
    QByteArray message;
    QDataStream(&message, QIODevice::WriteOnly)
        << protocol << qEnvironmentVariable("XDG_ACTIVATION_TOKEN") << paths;
    socket.write(message);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(limit))
            return false;
    }
    return socket.waitForReadyRead(limit) && socket.read(1) == QByteArray(1, taken);
}

void SingleInstance::accept()
{
    while (QLocalSocket *const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket] {
            quint32 version = 0;
            QString token;
            QStringList paths;
            QDataStream stream(socket);
            stream.startTransaction();
            stream >> version;
            if (version == protocol)
                stream >> token >> paths;
            if (!stream.commitTransaction() || version != protocol)
                return;
            socket->write(QByteArray(1, taken));
            socket->flush();
            if (!token.isEmpty())
                qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8()); // lets a window come to the front
            // Queued: opening a window dispatches events, such as the disconnection of this socket.
            QMetaObject::invokeMethod(
                this, [this, paths] { Q_EMIT filesPassed(paths); }, Qt::QueuedConnection);
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read();
    }
}

} // namespace vantrell
