#include "support/settings/UserDefaults.h"

#include "support/files/FileUtilities.h"
#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QLockFile>
#include <QSet>
#include <QThread>

#include <atomic>
#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <utility>

namespace vantrell
{

namespace
{

constexpr auto lockPatience = std::chrono::seconds(2);

std::atomic<UserDefaults::Access> standardAccess = UserDefaults::Access::Shared;
std::atomic<bool> isStandardMade = false;

} // namespace

UserDefaults::UserDefaults(const QString &path, Access access)
    : m_givenPath(path)
    , m_access(access)
{
    const QCoreApplication *application = QCoreApplication::instance();
    if (application && application->thread() != QThread::currentThread())
        moveToThread(application->thread());
    update({}, Writing::No);
}

UserDefaults::~UserDefaults()
{
    if (m_watcher)
        m_watcher->deleteLater();
}

UserDefaults &UserDefaults::standard()
{
    // Never destroyed: the application object takes the watcher with it.
    static UserDefaults *const shared = [] {
        isStandardMade = true;
        return new UserDefaults(QString(), standardAccess);
    }();
    return *shared;
}

void UserDefaults::setStandardAccess(Access access)
{
    standardAccess = access;
    if (isStandardMade)
        standard().setAccess(access);
}

void UserDefaults::setAccess(Access access)
{
    Settings before;
    {
        const std::lock_guard fileLock(m_fileMutex);
        {
            const std::lock_guard lock(m_mutex);
            m_access = access;
            std::swap(before, m_settings);
        }
        m_signature = Signature();
        takePath();
        read();
    }
    announceDifferences(before);
    watch();
}

QVariant UserDefaults::value(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    const QVariant set = m_settings.value(key);
    return set.isValid() ? set : m_registered.value(key);
}

QString UserDefaults::string(const QString &key) const
{
    return PropertyList::text(value(key));
}

qint64 UserDefaults::integer(const QString &key) const
{
    return PropertyList::integer(value(key));
}

bool UserDefaults::boolean(const QString &key) const
{
    return PropertyList::boolean(value(key));
}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    const std::lock_guard lock(m_mutex);
    m_registered.insert(defaults);
}

UserDefaults::Signature UserDefaults::signatureOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
#ifdef Q_OS_MACOS
    const timespec modified = status.st_mtimespec;
#else
    const timespec modified = status.st_mtim;
#endif
    return {status.st_ino, status.st_size, modified.tv_sec, modified.tv_nsec};
}

/// Takes in what others changed, makes the changes and tells which values differ from before.
void UserDefaults::update(const QVariantMap &changes, Writing writing)
{
    Settings before;
    {
        const std::lock_guard fileLock(m_fileMutex);
        takePath();
        {
            const std::lock_guard lock(m_mutex);
            before = m_settings;
        }
        read();
        bool mustWrite = false;
        {
            const std::lock_guard lock(m_mutex);
            for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
                // As it will be read again.
                const bool isTextList = change->typeId() == QMetaType::QStringList;
                const QVariant value = isTextList ? QVariant(change->toList()) : *change;
                if (m_settings.value(change.key()) != value)
                    m_settings.changes[change.key()] = value;
            }
            mustWrite =
                writing == Writing::Allowed && m_access == Access::Shared && !m_settings.changes.isEmpty();
        }
        if (mustWrite && write())
            m_isReported = false;
    }
    announceDifferences(before);
    watch();
}

/// Changes for the file of another folder are not for this one.
void UserDefaults::takePath()
{
    QString path = m_givenPath;
    if (path.isEmpty())
        path = StandardFolders::preferences() + QStringLiteral("/com.orvandel.vantrell.plist");
    if (path == m_path)
        return;
    const bool isFirst = m_path.isEmpty();
    m_path = path;
    m_signature = Signature();
    if (isFirst)
        return;
    const std::lock_guard lock(m_mutex);
    m_settings = Settings();
}

/// Reads the file if it is another one than last time.
void UserDefaults::read()
{
    Access access = Access::Volatile;
    {
        const std::lock_guard lock(m_mutex);
        access = m_access;
    }
    const Signature signature = access == Access::Volatile ? Signature() : signatureOf(m_path);
    if (signature == m_signature)
        return;
    m_signature = signature;
    QVariantMap content;
    if (readContent(content) == Content::Damaged && access == Access::Shared) {
        // Another process may have put the file aside and written a new one by now.
        const auto lock = lockFile();
        m_signature = signatureOf(m_path);
        if (lock && readContent(content) == Content::Damaged && putAside())
            m_signature = Signature();
    }
    const std::lock_guard lock(m_mutex);
    m_settings.stored = content;
}

/// Keeps other processes, and other objects of this one, from writing the same settings; null when that
/// cannot be had. The lock is a file beside theirs, which is replaced at every write.
std::unique_ptr<QLockFile> UserDefaults::lockFile()
{
    const QFileInfo info(m_path);
    auto lock = std::make_unique<QLockFile>(QStringLiteral("%1/.%2.lock").arg(info.path(), info.fileName()));
    // QLockFile's own wait sleeps much longer than a write takes.
    const QDeadlineTimer deadline(lockPatience);
    while (!lock->tryLock() && lock->error() == QLockFile::LockFailedError && !deadline.hasExpired())
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    if (lock->isLocked())
        return lock;
    reportOnce(lock->error() == QLockFile::LockFailedError ? QStringLiteral("another process writes them")
                                                           : QStringLiteral("their folder is read-only"));
    return nullptr;
}

/// Gives the file's content; none when there is no file or it is of no use.
UserDefaults::Content UserDefaults::readContent(QVariantMap &content)
{
    content.clear();
    if (!QFileInfo::exists(m_path))
        return Content::Whole;
    const Result<QByteArray> bytes = FileUtilities::readFile(m_path);
    if (!bytes) {
        reportOnce(bytes.message());
        return Content::Unreadable;
    }
    const Result<QVariant> list = PropertyList::fromBytes(bytes.value());
    if (!list || list.value().typeId() != QMetaType::QVariantMap)
        return Content::Damaged;
    content = list.value().toMap();
    return Content::Whole;
}

/// Renames the damaged file, with the lock held.
bool UserDefaults::putAside()
{
    const QString aside = FileUtilities::uniqueFilePath(m_path + QStringLiteral(".damaged"));
    if (!QFile::rename(m_path, aside)) {
        reportOnce(QStringLiteral("The file is damaged and cannot be renamed."));
        return false;
    }
    QVLog::fastAppendLog(u"The settings in \"%@\" were damaged and are kept as \"%@\"", m_path, aside);
    return true;
}

/// Writes the changes into what the file holds now. When that fails they stay in this process.
bool UserDefaults::write()
{
    const QString folder = QFileInfo(m_path).path();
    if (!QDir().mkpath(folder)) {
        reportOnce(QStringLiteral("The folder \"%1\" could not be made.").arg(folder));
        return false;
    }
    const auto lock = lockFile();
    if (!lock)
        return false;
    QVariantMap content;
    const Content state = readContent(content);
    if (state == Content::Unreadable || (state == Content::Damaged && !putAside()))
        return false;
    {
        const std::lock_guard memberLock(m_mutex);
        content.insert(m_settings.changes);
    }
    content.removeIf([](QVariantMap::iterator entry) { return !entry.value().isValid(); });
    if (const Result<void> written = PropertyList::toFile(content, m_path); !written) {
        reportOnce(written.message());
        return false;
    }
    m_signature = signatureOf(m_path);
    const std::lock_guard memberLock(m_mutex);
    m_settings = {content, {}};
    return true;
}

/// Announces the keys whose values are others than with these settings.
void UserDefaults::announceDifferences(const Settings &before)
{
    QStringList changedKeys;
    {
        const std::lock_guard lock(m_mutex);
        QSet<QString> keys;
        for (const QVariantMap &map : {before.stored, before.changes, m_settings.stored, m_settings.changes})
            keys.unite({map.keyBegin(), map.keyEnd()});
        const auto holding = [this](const Settings &settings, const QString &key) {
            const QVariant set = settings.value(key);
            return set.isValid() ? set : m_registered.value(key);
        };
        for (const QString &key : std::as_const(keys)) {
            if (holding(before, key) != holding(m_settings, key))
                changedKeys.append(key);
        }
    }
    for (const QString &key : changedKeys)
        Q_EMIT changed(key);
}

void UserDefaults::reportOnce(const QString &reason)
{
    if (std::exchange(m_isReported, true))
        return;
    QVLog::fastAppendLog(u"The settings in \"%@\" cannot be used: %@", m_path, reason);
}

/// Has the application's thread hear of changes: of the folder's, as writers replace the file, and of
/// the file's own.
void UserDefaults::watch()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application || application->thread() != QThread::currentThread() ||
        thread() != QThread::currentThread())
        return;
    QString path;
    {
        const std::lock_guard fileLock(m_fileMutex);
        path = m_path;
    }
    {
        const std::lock_guard lock(m_mutex);
        if (m_access == Access::Volatile)
            path.clear();
    }
    QStringList wanted;
    for (const QString &candidate : {QFileInfo(path).path(), path}) {
        if (!path.isEmpty() && QFileInfo::exists(candidate))
            wanted.append(candidate);
    }
    if (!m_watcher) {
        if (wanted.isEmpty())
            return;
        m_watcher = new QFileSystemWatcher(application);
        const auto look = [this] { update({}, Writing::No); };
        connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, look);
        connect(m_watcher, &QFileSystemWatcher::fileChanged, this, look);
    }
    const QStringList watched = m_watcher->directories() + m_watcher->files();
    for (const QString &old : watched) {
        if (!wanted.contains(old))
            m_watcher->removePath(old);
    }
    for (const QString &name : wanted) {
        if (!watched.contains(name))
            m_watcher->addPath(name);
    }
}

} // namespace vantrell
