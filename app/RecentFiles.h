#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace vantrell
{

class UserDefaults;

/// The recently opened files, most recent first, kept in the user default "recentFiles". Their existence is
/// not checked, as a volume might not answer. The user default "recentFCPProjects" lists those last opened as
/// projects of Final Cut Pro, which are fetched from there again. Main thread.
class RecentFiles final : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximum = 10;

    /// The defaults outlive the list.
    explicit RecentFiles(UserDefaults &defaults);

    QStringList paths() const;
    /// Whether the file was last opened as a project of Final Cut Pro.
    bool isFCPProject(const QString &path) const;
    /// Moves the file to the top of the list.
    void add(const QString &path, bool isFCPProject);
    /// Removes a file that no longer exists, unless its folder is gone too: its volume may return. Does not
    /// wait for a volume that does not answer.
    void forgetIfGone(const QString &path);
    void clear();

Q_SIGNALS:
    /// The list has changed, in this or another process.
    void changed();

private:
    void forget(const QString &path);
    void store(const QStringList &paths, const QStringList &projects);
    QStringList projects() const;

    UserDefaults &m_defaults;
};

} // namespace vantrell
