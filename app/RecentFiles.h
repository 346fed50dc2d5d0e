#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace vantrell
{

class UserDefaults;

/// The files that were opened last, the latest first, kept in the user defaults "recentFiles". Whether
/// they still exist is not looked at: their volume might not answer. Main thread.
class RecentFiles final : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximum = 10;

    /// The defaults outlive the list.
    explicit RecentFiles(UserDefaults &defaults);

    QStringList paths() const;
    /// Puts the file first.
    void add(const QString &path);
    /// Takes the file out of the list when its folder is there and it is not: a volume may come back.
    void forgetIfGone(const QString &path);
    void clear();

Q_SIGNALS:
    /// The list is another, whichever process changed it.
    void changed();

private:
    UserDefaults &m_defaults;
};

} // namespace vantrell
