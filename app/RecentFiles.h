#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace vantrell
{

class UserDefaults;

/// The files that were opened last, the latest first, kept in the user defaults "recentFiles". Whether
/// they still exist is not looked at: their volume might not answer. A project that was fetched from Final
/// Cut Pro is fetched from there again, whatever its name ends in; which ones those are is kept in the user
/// defaults "recentFCPProjects". A path stands for what it was opened as last. Main thread.
class RecentFiles final : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximum = 10;

    /// The defaults outlive the list.
    explicit RecentFiles(UserDefaults &defaults);

    QStringList paths() const;
    /// Whether the file is to be opened as a project that Final Cut Pro holds.
    bool isFCPProject(const QString &path) const;
    /// Puts the file first.
    void add(const QString &path, bool isFCPProject);
    /// Takes the file out of the list when its folder is there and it is not: a volume may come back.
    void forgetIfGone(const QString &path);
    void clear();

Q_SIGNALS:
    /// The list is another, whichever process changed it.
    void changed();

private:
    void store(const QStringList &paths, const QStringList &projects);
    QStringList projects() const;

    UserDefaults &m_defaults;
};

} // namespace vantrell
