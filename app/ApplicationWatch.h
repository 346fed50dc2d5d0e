#pragma once

#include <QObject>
#include <QString>

namespace vantrell
{

/// Whether another application runs, as it was when that was last looked at. Looking may take as long as
/// the disk with the applications does, so it goes on in the background. Main thread.
class ApplicationWatch final : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationWatch(const QString &bundleIdentifier);

    /// False until the first look has ended.
    bool isRunning() const { return m_isRunning; }

public Q_SLOTS:
    /// Looks again, unless that is going on.
    void look();

Q_SIGNALS:
    /// A look has ended.
    void looked();

private:
    void note(bool isRunning);

    const QString m_bundleIdentifier;
    bool m_isRunning = false;
    bool m_isLooking = false;
};

} // namespace vantrell
