#include "support/settings/UserDefaults.h"

#include "support/files/FileUtilities.h"
#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>
#include <QThread>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace vantrell
{

namespace
{

constexpr auto lockPatience = std::chrono::seconds(2);

std::atomic<UserDefaults::Access> standardAccess = UserDefaults::Access::Shared;
std::atomic<bool> isStandardMade = false;

QString standardPath()
{
    return StandardFolders::preferences() + QStringLiteral("/com.orvandel.vantrell.plist");
}

/// Keeps other processes, and other objects of this one, from writing the same settings. The lock is
/// on a file beside them, as their own file is replaced at every write; it ends with the process.
class SettingsLock
{
public:
    explicit SettingsLock(const QString &path)
    {
        const QFileInfo info(path);
        const QString lockPath =
            info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".lock");
        m_descriptor = ::open(QFile::encodeName(lockPath).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (m_descriptor < 0) {
            m_error = errno;
            return;
        }
        const auto deadline = std::chrono::steady_clock::now() + lockPatience;
        while (::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) {
            if (errno == EINTR)
                continue;
            if (errno != EWOULDBLOCK) // a file system without locks
                return;
            if (std::chrono::steady_clock::now() >= deadline) {
                m_error = EWOULDBLOCK;
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
    SettingsLock(const SettingsLock &) = delete;
    SettingsLock &operator=(const SettingsLock &) = delete;
    ~SettingsLock()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    /// 0 when the lock is held.
    int error() const { return m_error; }

private:
    int m_descriptor = -1;
    int m_error = 0;
};

/// The value that is set for a key, in the file or here; a null value when none is.
const PropertyListValue &setValueOf(const QString &key, const PropertyListDictionary &stored,
                                    const std::map<QString, PropertyListValue> &changes)
{
    const auto change = changes.find(key);
    return change == changes.end() ? stored.value(key) : change->second;
}

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
    PropertyListDictionary stored;
    Changes changes;
    QStringList keys;
    {
        const std::lock_guard fileLock(m_fileMutex);
        {
            const std::lock_guard lock(m_mutex);
            m_access = access;
            stored = m_stored;
            changes.swap(m_changes);
            m_stored = PropertyListDictionary();
        }
        m_signature = Signature();
        takePath();
        read();
        keys = differences(stored, changes);
    }
    for (const QString &key : keys)
        Q_EMIT changed(key);
    watch();
}

// Values -------------------------------------------------------------------------------------------

PropertyListValue UserDefaults::value(const QString &key) const
{
    const std::lock_guard lock(m_mutex);
    const PropertyListValue &set = setValueOf(key, m_stored, m_changes);
    return set.isNull() ? m_registered.value(key) : set;
}

QString UserDefaults::string(const QString &key) const
{
    return value(key).toString();
}

qint64 UserDefaults::integer(const QString &key) const
{
    return value(key).toInteger();
}

bool UserDefaults::boolean(const QString &key) const
{
    return value(key).toBoolean();
}

void UserDefaults::registerDefaults(const PropertyListDictionary &defaults)
{
    const std::lock_guard lock(m_mutex);
    for (const PropertyListDictionary::Entry &entry : defaults)
        m_registered.insert(entry.key, entry.value);
}

void UserDefaults::setValue(const QString &key, const PropertyListValue &value)
{
    update({{key, value}}, Writing::Allowed);
}

void UserDefaults::setValues(const PropertyListDictionary &values)
{
    Changes changes;
    for (const PropertyListDictionary::Entry &entry : values)
        changes.emplace(entry.key, entry.value);
    update(changes, Writing::Allowed);
}

void UserDefaults::removeValue(const QString &key)
{
    setValue(key, PropertyListValue());
}

void UserDefaults::synchronize()
{
    update({}, Writing::Allowed);
}

// The file -----------------------------------------------------------------------------------------

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
void UserDefaults::update(const Changes &changes, Writing writing)
{
    QStringList keys;
    {
        const std::lock_guard fileLock(m_fileMutex);
        takePath();
        PropertyListDictionary storedBefore;
        Changes changesBefore;
        {
            const std::lock_guard lock(m_mutex);
            storedBefore = m_stored;
            changesBefore = m_changes;
        }
        read();
        bool mustWrite = false;
        {
            const std::lock_guard lock(m_mutex);
            for (const auto &[key, value] : changes) {
                if (!(setValueOf(key, m_stored, m_changes) == value))
                    m_changes[key] = value;
            }
            mustWrite = writing == Writing::Allowed && m_access == Access::Shared && !m_changes.empty();
        }
        if (mustWrite && write())
            m_isReported = false;
        keys = differences(storedBefore, changesBefore);
    }
    for (const QString &key : keys)
        Q_EMIT changed(key);
    watch();
}

/// Changes for the file of another folder are not for this one.
void UserDefaults::takePath()
{
    const QString path = m_givenPath.isEmpty() ? standardPath() : m_givenPath;
    if (path == m_path)
        return;
    const bool isFirst = m_path.isEmpty();
    m_path = path;
    m_signature = Signature();
    if (isFirst)
        return;
    const std::lock_guard lock(m_mutex);
    m_stored = PropertyListDictionary();
    m_changes.clear();
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
    PropertyListDictionary content;
    if (readContent(content) == Content::Damaged && access == Access::Shared) {
        // Another process may have put the file aside and written a new one by now.
        const SettingsLock settingsLock(m_path);
        m_signature = signatureOf(m_path);
        if (settingsLock.error() == 0 && readContent(content) == Content::Damaged && putAside())
            m_signature = Signature();
    }
    const std::lock_guard lock(m_mutex);
    m_stored = content;
}

/// Gives the file's content; none when there is no file or it is of no use.
UserDefaults::Content UserDefaults::readContent(PropertyListDictionary &content)
{
    content = PropertyListDictionary();
    if (!QFileInfo::exists(m_path))
        return Content::Whole;
    const Result<QByteArray> bytes = FileUtilities::readFile(m_path);
    if (!bytes) {
        reportOnce(bytes.message());
        return Content::Unreadable;
    }
    const Result<PropertyListValue> list = PropertyList::fromBytes(bytes.value());
    if (!list || list.value().type() != PropertyListValue::Type::Dictionary)
        return Content::Damaged;
    content = list.value().toDictionary();
    return Content::Whole;
}

/// Renames the damaged file, with the lock held.
bool UserDefaults::putAside()
{
    const QString aside = FileUtilities::uniqueFilePath(m_path + QStringLiteral(".damaged"));
    if (std::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(aside).constData()) != 0) {
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
    const SettingsLock settingsLock(m_path);
    if (settingsLock.error() != 0) {
        reportOnce(qt_error_string(settingsLock.error()));
        return false;
    }
    PropertyListDictionary content;
    const Content state = readContent(content);
    if (state == Content::Unreadable || (state == Content::Damaged && !putAside()))
        return false;
    {
        const std::lock_guard lock(m_mutex);
        for (const auto &[key, value] : m_changes)
            content.insert(key, value);
    }
    if (const Result<void> written = PropertyList::toFile(content, m_path); !written) {
        reportOnce(written.message());
        return false;
    }
    m_signature = signatureOf(m_path);
    const std::lock_guard lock(m_mutex);
    m_stored = content;
    m_changes.clear();
    return true;
}

/// The keys whose values are others than with these stored values and changes.
QStringList UserDefaults::differences(const PropertyListDictionary &stored, const Changes &changes) const
{
    const std::lock_guard lock(m_mutex);
    QSet<QString> seen;
    QStringList keys;
    const auto compare = [&](const QString &key) {
        if (seen.contains(key))
            return;
        seen.insert(key);
        const PropertyListValue &before = setValueOf(key, stored, changes);
        const PropertyListValue &now = setValueOf(key, m_stored, m_changes);
        const PropertyListValue &registered = m_registered.value(key);
        if (!((before.isNull() ? registered : before) == (now.isNull() ? registered : now)))
            keys.append(key);
    };
    for (const PropertyListDictionary *dictionary : {&stored, &m_stored}) {
        for (const PropertyListDictionary::Entry &entry : *dictionary)
            compare(entry.key);
    }
    for (const Changes *list : {&changes, &m_changes}) {
        for (const auto &[key, value] : *list)
            compare(key);
    }
    return keys;
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
