#pragma once

#include <QObject>
#include <QString>

namespace vantrell
{

/// Tells whether another application was running at the last check. Checks run in the background, as they
/// wait for the disk with the applications. Main thread.
class ApplicationWatch final : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationWatch(const QString &bundleIdentifier);

    /// False until the first check has ended.
    bool isRunning() const { return m_isRunning; }

public Q_SLOTS:
    /// Starts a check unless one is running.
    void look();

Q_SIGNALS:
    /// A check has ended.
    void looked();

private:
    void note(bool isRunning);

    const QString m_bundleIdentifier;
    bool m_isRunning = false;
    bool m_isLooking = false;
};

} // namespace vantrell
