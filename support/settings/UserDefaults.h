#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <mutex>

class QFileSystemWatcher;
class QLockFile;

namespace vantrell
{

/// The user's settings: an XML property list in the preferences folder, shared by all documents and
/// all processes. A change is written before the call that makes it returns; the write takes a lock
/// between processes, reads the file again and changes its own keys only. What cannot be written (a
/// read-only folder) holds for this process and is tried again with the next change.
///
/// A file that cannot be parsed is renamed to end in ".damaged", and the defaults hold.
///
/// Any thread. The object belongs to the application's thread, on which it hears of other processes'
/// changes while there is an application object; without one, synchronize() looks for them.
class UserDefaults : public QObject
{
    Q_OBJECT

public:
    /// Shared: reads and writes the file. ReadOnly: reads it; changes stay in this process. Volatile:
    /// neither reads nor writes; there is what was registered and set in this process.
    enum class Access { Shared, ReadOnly, Volatile };

    /// The settings in one file; an empty path stands for the program's own file, whose path is looked up
    /// again whenever the file is used.
    explicit UserDefaults(const QString &path, Access access = Access::Shared);
    ~UserDefaults() override;

    /// The program's settings. They live as long as the process.
    static UserDefaults &standard();
    /// How standard() uses its file. Before the first call of standard(), nothing has been read yet.
    static void setStandardAccess(Access access);
    /// Changes how the file is used from now on. What was set in this process alone is forgotten.
    void setAccess(Access access);

    /// The value of a key: the one set, else the one registered, else an invalid one.
    QVariant value(const QString &key) const;
    /// value() as a text (null when there is none), a whole number (0) and a boolean (false).
    QString string(const QString &key) const;
    qint64 integer(const QString &key) const;
    bool boolean(const QString &key) const;

    /// Gives keys the values that hold while nothing is set for them; they are not written.
    void registerDefaults(const QVariantMap &defaults);
    /// Sets a key, or several in one write; an invalid value removes its key, so that the registered one
    /// holds.
    void setValue(const QString &key, const QVariant &value) { setValues({{key, value}}); }
    void setValues(const QVariantMap &values) { update(values, Writing::Allowed); }
    void removeValue(const QString &key) { setValue(key, QVariant()); }
    /// Writes what could not be written before and takes in what other processes changed.
    void synchronize() { update({}, Writing::Allowed); }

Q_SIGNALS:
    /// The value of a key is another one than before, whoever changed it. Sent on the thread that
    /// found the change, with no lock held.
    void changed(const QString &key);

private:
    /// What the file held, and what is set here and not in the file: there invalid values remove their keys.
    struct Settings {
        QVariantMap stored;
        QVariantMap changes;

        QVariant value(const QString &key) const { return changes.value(key, stored.value(key)); }
    };

    /// What tells one state of the file from another.
    struct Signature {
        quint64 inode = 0;
        qint64 size = -1; // bytes; -1 for no file
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        bool operator==(const Signature &) const = default;
    };

    enum class Writing { Allowed, No };
    enum class Content { Whole, Damaged, Unreadable };

    static Signature signatureOf(const QString &path);

    void update(const QVariantMap &changes, Writing writing);
    void takePath();
    void read();
    bool write();
    std::unique_ptr<QLockFile> lockFile();
    Content readContent(QVariantMap &content);
    bool putAside();
    void announceDifferences(const Settings &before);
    void reportOnce(const QString &reason);
    void watch();

    const QString m_givenPath;

    std::mutex m_fileMutex; ///< held while the file is used; guards m_path to m_isReported
    QString m_path;
    Signature m_signature; ///< of the file when it was last read or written
    bool m_isReported = false;

    QPointer<QFileSystemWatcher> m_watcher; ///< the application's thread alone

    mutable std::mutex m_mutex; ///< guards the members below; taken after m_fileMutex
    Access m_access;
    QVariantMap m_registered;
    Settings m_settings;
};

} // namespace vantrell
