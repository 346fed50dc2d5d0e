#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <vector>

namespace vantrell
{

/// A home folder for one test: HOME, the XDG folders and the system-wide library folder point into it, and
/// the log takes the process for that of an ordinary user. Restored on destruction. One at a time, on the
/// main thread, while no other thread reads the environment.
class TemporaryHome
{
public:
    TemporaryHome();
    TemporaryHome(const TemporaryHome &) = delete;
    TemporaryHome &operator=(const TemporaryHome &) = delete;
    ~TemporaryHome();

    /// The home folder, or a path in it.
    QString path() const { return m_folder.path(); }
    QString path(const QString &relative) const { return m_folder.filePath(relative); }

    /// Writes a file in the home, creating its folders, and returns its path.
    QString addFile(const QString &relative, const QByteArray &content) const;

private:
    struct Variable {
        const char *name;
        bool wasSet;
        QByteArray value;
    };

    void set(const char *name, const QByteArray &value);

    QTemporaryDir m_folder;
    std::vector<Variable> m_variables;
};

/// The content of a file; empty when it cannot be read.
QByteArray contentOf(const QString &path);

} // namespace vantrell
